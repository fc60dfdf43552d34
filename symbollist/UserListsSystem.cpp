// The six system lists.
#include "idlist/StorableText.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"
#include "symbollist/ListIds.h"
#include "symbollist/UserLists.h"

namespace tq {
namespace {

CString SystemListName(const CStringArray* names, int index) {
  if (names != nullptr && names->GetSize() > index)
    return (*names)[index];
  return LibraryString(kStringFirstSystemList + static_cast<unsigned>(index));
}

} // namespace

void UserLists::StartSystemLists(const CStringArray* names) {
  if (names != nullptr)
    systemListNames_.Copy(*names);
  AddSystemLists(&systemListNames_);
}

void UserLists::AddSystemLists(const CStringArray* names) {
  for (int i = 0; i < kSystemListCount; ++i) {
    if (Find(SystemListId(i)) != nullptr)
      continue;
    auto list = std::make_unique<CSymbolList>();
    list->SetID(SystemListId(i));
    list->SetName(SystemListName(names, i));
    lists_.AddLast(std::move(list));
  }
}

int UserLists::UpdateSystemList(const CString& id, const CString& name, const CString& symbols,
                                int& nameChanged) {
  CSymbolList* list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  list->Update1(symbols);
  nameChanged = 0;
  // Cleaned before the list is looked for again: what is left out is logged, and the terminal may
  // have deleted the list then, or while the service was asked.
  const CString keptName = StorableText(name);
  list = Find(id);
  if (list == nullptr || name.IsEmpty())
    return 1;
  // Compared as it is kept: a name that is cut is not another name each time.
  const CString before = list->GetName();
  list->SetName(keptName);
  nameChanged = list->GetName() != before ? 1 : 0;
  return 1;
}

int UserLists::UpdateSystemList(int index, const CString& symbols, bool replace) {
  if (index < 0 || index >= kSystemListCount || index >= systemListNames_.GetSize())
    return NoteProblem(TQProblemRange, "Init named no system list %d", index);
  CSymbolList* const list = Find(SystemListId(index));
  if (list == nullptr)
    return NoteNoList(SystemListId(index));
  if (!replace && !list->GetIDs().IsEmpty())
    return NoteProblem(TQProblemTaken, "system list %d has symbols already", index);
  list->Update1(symbols);
  return 1;
}

void UserLists::UpdateSystemLists(const CMapStringToString& symbols,
                                  const CMapStringToString* names) {
  bool anyName = false;
  for (POSITION at = symbols.GetStartPosition(); at != nullptr;) {
    CString id;
    CString ids;
    CString name;
    symbols.GetNextAssoc(at, id, ids);
    if (names != nullptr)
      names->Lookup(id, name);
    int nameChanged = 0;
    UpdateSystemList(id, name, ids, nameChanged);
    anyName = anyName || nameChanged != 0;
  }
  Save();
  Notify(kNotifySymbols, anyName ? TQReasonListNames : "");
}

} // namespace tq
