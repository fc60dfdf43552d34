// Checks of names, identifiers and working copies.
#include "idlist/ListKind.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Text.h"
#include "symbollist/TextFaults.h"

int CTQSymbolListMgr::CheckNameExist(const CString& name, int skipOne, int skip,
                                     int kind) noexcept {
  tq::CheckCall("CheckNameExist", "name", name);
  return state_->ListsOf(kind).HasName(name, skipOne != 0 ? skip : -1);
}

int CTQSymbolListMgr::CheckIDandName(const CString& id, const CString& name, int kind) noexcept {
  tq::CheckCall("CheckIDandName", "id,name", id, name);
  const CSymbolList* const list = state_->ListsOf(kind).Find(id);
  if (list == nullptr)
    return 0;
  int bits = TQIdExists;
  if (list->IsSameName(name))
    bits |= TQNameMatches;
  return bits;
}

int CTQSymbolListMgr::CheckSymbolListExist(const CString& id, int kind) noexcept {
  tq::CheckCall("CheckSymbolListExist", "id", id);
  return state_->ListsOf(kind).Find(id) != nullptr;
}

int CTQSymbolListMgr::CheckListAndNameExist(const CString& id, const CString& name,
                                            int kind) noexcept {
  tq::CheckCall("CheckListAndNameExist", "id,name", id, name);
  return state_->ListsOf(kind).HasIdAndName(id, name);
}

bool CTQSymbolListMgr::IsModifyList(CPtrArray* lists, int defaultIndex) noexcept {
  tq::CheckCall("IsModifyList");
  return lists == nullptr || defaultIndex != state_->userLists.DefaultIndex() ||
         !state_->userLists.Lists().HaveNamesAndContentsOf(*lists);
}

bool CTQSymbolListMgr::IsModifyCountList(CPtrArray* lists) noexcept {
  tq::CheckCall("IsModifyCountList");
  return lists == nullptr || !state_->cloudLists.Lists().HaveNamesAndContentsOf(*lists);
}

int CTQSymbolListMgr::CheckValidSymbolList(const CString& id, int kind) noexcept {
  tq::CheckCall("CheckValidSymbolList", "id", id);
  return state_->ListsOf(tq::KindOfIds(kind)).ProblemsOfNewId(id);
}

int CTQSymbolListMgr::CheckListName(const CString& name) noexcept {
  tq::CheckCall("CheckListName");
  return tq::FaultsOfName(name);
}

int CTQSymbolListMgr::CheckSymbolIds(const CString& symbols) noexcept {
  tq::CheckCall("CheckSymbolIds");
  return tq::FaultsOfSymbols(symbols);
}

void CTQSymbolListMgr::CutStringAndGetParamBefore(CString& text, char separator,
                                                  CString& before) noexcept {
  tq::CutBefore(text, separator, before);
}
