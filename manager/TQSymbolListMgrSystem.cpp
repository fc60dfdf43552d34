// The six system lists.
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/ListIds.h"

int CTQSymbolListMgr::LoadSystemList(CStringArray* names) noexcept {
  state_->userLists.AddSystemLists(names);
  return 1;
}

int CTQSymbolListMgr::IsSystemList(const char* id, int kind) noexcept {
  const CSymbolList* const list = state_->ListsOf(kind).Find(id);
  return list == nullptr ? 0 : list->GetFlag();
}

int CTQSymbolListMgr::IsSameSysSymbolListGUID(const CString& id) const noexcept {
  return tq::IsSystemListId(id) ? 1 : 0;
}

int CTQSymbolListMgr::UpdateSystemList(const CString& id, const CString& name,
                                       const CString& symbols, int& nameChanged) noexcept {
  return state_->userLists.UpdateSystemList(id, name, symbols, nameChanged);
}

int CTQSymbolListMgr::UpdateSystemList(int index, const CString& symbols, int mode) noexcept {
  return state_->userLists.UpdateSystemList(index, symbols, mode != 0);
}

int CTQSymbolListMgr::UpdateSystemList(CMapStringToString* symbols,
                                       CMapStringToString* names) noexcept {
  if (symbols == nullptr)
    return 0;
  state_->userLists.UpdateSystemLists(*symbols, names);
  return 1;
}
