// The six system lists.
#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"
#include "symbollist/ListKind.h"
#include "symbollist/SystemListId.h"

namespace {

// The terminal knows this reason: do not change.
constexpr char kReasonNames[] = "ListNameChange";

CString SystemListName(const CStringArray* names, int index) {
  if (names != nullptr && names->GetSize() > index)
    return (*names)[index];
  return tq::LibraryString(tq::kStringFirstSystemList + static_cast<unsigned>(index));
}

} // namespace

int CTQSymbolListMgr::LoadSystemList(CStringArray* names) noexcept {
  for (int i = 0; i < tq::kSystemListCount; ++i) {
    if (CheckSymbolListExist(tq::SystemListId(i), tq::kUserLists) != 0)
      continue;
    auto* list = new CSymbolList;
    list->SetID(tq::SystemListId(i));
    list->SetName(SystemListName(names, i));
    PutSymbolList(list, 1);
  }
  return 1;
}

int CTQSymbolListMgr::IsSystemList(const char* id, int kind) noexcept {
  const CSymbolList* list = FindList(id, kind);
  return list == nullptr ? 0 : list->GetFlag();
}

int CTQSymbolListMgr::IsSameSysSymbolListGUID(const CString& id) const noexcept {
  return tq::IsSystemListId(id) ? 1 : 0;
}

int CTQSymbolListMgr::UpdateSystemList(const CString& id, const CString& name,
                                       const CString& symbols, int& nameChanged) noexcept {
  CSymbolList* list = FindUserList(id);
  if (list == nullptr)
    return 0;
  list->Update1(symbols);
  nameChanged = 0;
  list = FindUserList(id); // which the terminal may have deleted while the service was asked
  if (list == nullptr || name.IsEmpty())
    return 1;
  // Compared as it is kept: a name that is cut is not another name each time.
  const CString before = list->GetName();
  list->SetName(name);
  nameChanged = list->GetName() != before ? 1 : 0;
  return 1;
}

int CTQSymbolListMgr::UpdateSystemList(int index, const CString& symbols, int mode) noexcept {
  if (index < 0 || index >= tq::kSystemListCount || index >= systemListNames_.GetSize())
    return 0;
  CSymbolList* list = FindUserList(tq::SystemListId(index));
  if (list == nullptr || (mode == 0 && !list->GetIDs().IsEmpty()))
    return 0;
  list->Update1(symbols);
  return 1;
}

int CTQSymbolListMgr::UpdateSystemList(CMapStringToString* symbols,
                                       CMapStringToString* names) noexcept {
  if (symbols == nullptr)
    return 0;
  bool anyName = false;
  for (POSITION at = symbols->GetStartPosition(); at != nullptr;) {
    CString id;
    CString ids;
    CString name;
    symbols->GetNextAssoc(at, id, ids);
    if (names != nullptr)
      names->Lookup(id, name);
    int nameChanged = 0;
    UpdateSystemList(id, name, ids, nameChanged);
    anyName = anyName || nameChanged != 0;
  }
  SaveSymbolList();
  tq::Notify(tq::kNotifySymbols, anyName ? kReasonNames : "");
  return 1;
}
