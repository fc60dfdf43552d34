// The six system lists.
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/ListIds.h"

int CTQSymbolListMgr::LoadSystemList(CStringArray* names) noexcept {
  const tq::Operation operation("LoadSystemList");
  state_->userLists.AddSystemLists(names);
  return 1;
}

int CTQSymbolListMgr::IsSystemList(const char* id, int kind) noexcept {
  tq::CheckCall("IsSystemList", "id", id);
  const CSymbolList* const list = state_->ListsOf(kind).Find(id);
  return list == nullptr ? 0 : list->GetFlag();
}

int CTQSymbolListMgr::IsSameSysSymbolListGUID(const CString& id) const noexcept {
  return tq::IsSystemListId(id) ? 1 : 0;
}

int CTQSymbolListMgr::UpdateSystemList(const CString& id, const CString& name,
                                       const CString& symbols, int& nameChanged) noexcept {
  const tq::Operation operation("UpdateSystemList", "id,name,symbols", id, name, symbols);
  return state_->userLists.UpdateSystemList(id, name, symbols, nameChanged);
}

int CTQSymbolListMgr::UpdateSystemList(int index, const CString& symbols, int mode) noexcept {
  const tq::Operation operation("UpdateSystemList", "symbols", symbols);
  return state_->userLists.UpdateSystemList(index, symbols, mode != 0);
}

int CTQSymbolListMgr::UpdateSystemList(CMapStringToString* symbols,
                                       CMapStringToString* names) noexcept {
  const tq::Operation operation("UpdateSystemList");
  if (symbols == nullptr)
    return tq::NoteProblem(TQProblemNull, "symbols is null");
  state_->userLists.UpdateSystemLists(*symbols, names);
  return 1;
}
