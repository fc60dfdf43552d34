// Cloud lists: the lists of kind 8 and the cloud map.
#include <memory>
#include <utility>

#include "cloud/CloudMap.h"
#include "cloud/CloudeListUtil.h"
#include "groups/GroupList.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "symbollist/ListKind.h"
#include "symbollist/NewListId.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/StorableText.h"

namespace {

// The pieces between the commas, without the empty ones.
CString WithoutEmptyPieces(const CString& symbols) {
  CString pieces;
  for (int start = 0; start <= symbols.GetLength();) {
    const int comma = symbols.Find(',', start);
    const int end = comma < 0 ? symbols.GetLength() : comma;
    if (end > start) {
      if (!pieces.IsEmpty())
        pieces += ',';
      pieces.Append(symbols.GetString() + start, end - start);
    }
    start = end + 1;
  }
  return pieces;
}

} // namespace

void CTQSymbolListMgr::SetCloudeList(const CString& id, const CString& name,
                                     const CString& symbols) noexcept {
  tq::LogLine(tq::kLogChange, "CTQSymbolListMgr::SetCloudeList ListName=%s, Symbols=%s",
              name.GetString(), symbols.GetString());
  const tq::CloudList& list = cloudMap_->Set(id, name, symbols);
  UpdateCloudSymbolList(list.info.ID, tq::kCloudGroupType, name, symbols, 1);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, const CString& name,
                                             const CString& symbols) noexcept {
  tq::LogLine(tq::kLogChange, "CTQSymbolListMgr::UpdateCloudSymbolList ListName=%s, Symbols=%s",
              name.GetString(), symbols.GetString());
  cloudMap_->Set(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, int /*type*/, const CString& name,
                                             const CString& symbols, int allowEmpty) noexcept {
  CSymbolList* const list = cloudLists_->Find(id);
  if (list == nullptr) {
    AddCloudSymbolList(id, name, symbols, allowEmpty);
    return;
  }
  list->Update1(symbols);
  tq::Notify(tq::kNotifyCloudLists, "");
}

int CTQSymbolListMgr::AddCloudSymbolList(const CString& id, const CString& name,
                                         const CString& symbols, int allowEmpty) noexcept {
  if (tq::StorableText(name).IsEmpty() || (symbols.IsEmpty() && allowEmpty == 0))
    return 0;
  if (CheckValidSymbolList(id, tq::kCloudGroupType) != 0)
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  const unsigned changes = cloudLists_->Changes();
  auto list = std::make_unique<CSymbolList>();
  list->Update1(WithoutEmptyPieces(symbols));
  // The terminal may have added one itself while the symbols were resolved.
  if (changes != cloudLists_->Changes() && CheckValidSymbolList(id, tq::kCloudGroupType) != 0)
    return 0;
  list->SetID(listId);
  list->SetName(name);
  cloudLists_->AddLast(std::move(list));
  return 1;
}

int CTQSymbolListMgr::SetCloudSymbolList(CPtrArray* lists, int /*unused*/) noexcept {
  if (lists == nullptr)
    return 0;
  CPtrArray copies;
  for (int i = 0; i < lists->GetSize(); ++i) {
    CSymbolList* source = tq::ListAt(*lists, i);
    if (source == nullptr)
      continue;
    copies.Add(CopyMoved(*source));
  }
  // Only now the old ones go: the caller may have handed over lists of the manager itself, and the
  // terminal may have changed them while symbols were resolved.
  cloudLists_->Replace(copies);
  return 1;
}

CString CTQSymbolListMgr::GetCloudeList() noexcept {
  return cloudMap_->Text();
}

void CTQSymbolListMgr::UpdateCloudGroup(void* handle) noexcept {
  auto* group = static_cast<CGroupList*>(handle);
  const auto alive = tq::KeepAlive(group);
  if (group == nullptr || group->GetSubCount() > 0)
    return;
  const CString id = group->GetInfo().szID;
  CCloudeListUtil::TakeOver(*group, *cloudMap_, id, "CTQSymbolListMgr::UpdateCloudGroup");
}

void CTQSymbolListMgr::RefreshCloudeSymbol() noexcept {
  LoadGroupList(tq::kCloudGroupType);
  tq::Notify(tq::kNotifySymbols, "ListNameChange");
}
