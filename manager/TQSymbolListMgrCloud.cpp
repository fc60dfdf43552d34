// Cloud lists.
#include "idlist/ListKind.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Notify.h"

void CTQSymbolListMgr::SetCloudeList(const CString& id, const CString& name,
                                     const CString& symbols) noexcept {
  state_->cloudLists.Set(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, const CString& name,
                                             const CString& symbols) noexcept {
  state_->cloudLists.SetInMap(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, int /*type*/, const CString& name,
                                             const CString& symbols, int allowEmpty) noexcept {
  state_->cloudLists.Update(id, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::AddCloudSymbolList(const CString& id, const CString& name,
                                         const CString& symbols, int allowEmpty) noexcept {
  return state_->cloudLists.Add(id, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::SetCloudSymbolList(CPtrArray* lists, int /*unused*/) noexcept {
  if (lists == nullptr)
    return 0;
  state_->cloudLists.Replace(*lists);
  return 1;
}

CString CTQSymbolListMgr::GetCloudeList() noexcept {
  return state_->cloudLists.MapText();
}

void CTQSymbolListMgr::UpdateCloudGroup(void* handle) noexcept {
  state_->cloudLists.UpdateGroup(handle);
}

void CTQSymbolListMgr::RefreshCloudeSymbol() noexcept {
  state_->groups.Load(tq::kCloudGroupType);
  tq::Notify(tq::kNotifySymbols, TQReasonListNames);
}
