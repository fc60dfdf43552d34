// Cloud lists: the lists of kind 8 and the cloud map.
#include "groups/CloudMap.h"
#include "groups/CloudeListUtil.h"
#include "groups/GroupList.h"
#include "symbollist/ListArray.h"
#include "symbollist/ListKind.h"
#include "symbollist/Log.h"
#include "symbollist/NewListId.h"
#include "symbollist/Notify.h"
#include "symbollist/StorableText.h"
#include "symbollist/TQSymbolListMgr.h"
#include "symboltable/MovedSymbols.h"

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
                                     const CString& symbols) {
  tq::LogLine(tq::kLogChange, "CTQSymbolListMgr::SetCloudeList ListName=%s, Symbols=%s",
              name.GetString(), symbols.GetString());
  const tq::CloudList& list = cloudMap_->Set(id, name, symbols);
  UpdateCloudSymbolList(list.info.ID, tq::kCloudGroupType, name, symbols, 1);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, const CString& name,
                                             const CString& symbols) {
  tq::LogLine(tq::kLogChange, "CTQSymbolListMgr::UpdateCloudSymbolList ListName=%s, Symbols=%s",
              name.GetString(), symbols.GetString());
  cloudMap_->Set(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, int /*type*/, const CString& name,
                                             const CString& symbols, int allowEmpty) {
  const int index = tq::FindListById(cloudLists_, id);
  if (index < 0) {
    AddCloudSymbolList(id, name, symbols, allowEmpty);
    return;
  }
  tq::ListAt(cloudLists_, index)->Update1(symbols);
  tq::Notify(tq::kNotifyCloudLists, "");
}

int CTQSymbolListMgr::AddCloudSymbolList(const CString& id, const CString& name,
                                         const CString& symbols, int allowEmpty) {
  if (tq::StorableText(name).IsEmpty() || (symbols.IsEmpty() && allowEmpty == 0))
    return 0;
  if (CheckValidSymbolList(id, tq::kCloudGroupType) != 0)
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  auto* list = new CSymbolList;
  list->Update1(WithoutEmptyPieces(symbols));
  list->SetID(listId);
  list->SetName(name);
  cloudLists_.Add(list);
  return 1;
}

int CTQSymbolListMgr::SetCloudSymbolList(CPtrArray* lists, int /*unused*/) {
  if (lists == nullptr)
    return 0;
  // Copied before the old ones go: the caller may hand over lists of the manager itself.
  CPtrArray old;
  old.Copy(cloudLists_);
  cloudLists_.RemoveAll();
  for (int i = 0; i < lists->GetSize(); ++i) {
    CSymbolList* source = tq::ListAt(*lists, i);
    if (source == nullptr)
      continue;
    // In the caller's list too, on purpose: it goes on showing what was stored.
    ReplaceSymbolListExchID(source, tq::kMovedFromExchange, tq::kMovedToExchange);
    cloudLists_.Add(new CSymbolList(*source));
  }
  tq::DestroyLists(old);
  return 1;
}

CString CTQSymbolListMgr::GetCloudeList() {
  return cloudMap_->Text();
}

void CTQSymbolListMgr::UpdateCloudGroup(void* handle) {
  auto* group = static_cast<CGroupList*>(handle);
  if (group == nullptr || group->GetSubCount() > 0)
    return;
  const CString id = group->GetInfo().szID;
  if (CCloudeListUtil::TakeOver(*group, *cloudMap_, id))
    tq::LogLine(tq::kLogChange, "CTQSymbolListMgr::UpdateCloudGroup ListName=%s, Symbols=%s",
                cloudMap_->Find(id)->info.Name, group->GetIDs().GetString());
}

void CTQSymbolListMgr::RefreshCloudeSymbol() {
  LoadGroupList(tq::kCloudGroupType);
  tq::Notify(tq::kNotifySymbols, "ListNameChange");
}
