// Cloud lists.
#include "idlist/ListKind.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Notify.h"

void CTQSymbolListMgr::SetCloudeList(const CString& id, const CString& name,
                                     const CString& symbols) noexcept {
  const tq::Operation operation("SetCloudeList", "id,name,symbols", id, name, symbols);
  state_->cloudLists.Set(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, const CString& name,
                                             const CString& symbols) noexcept {
  const tq::Operation operation("UpdateCloudSymbolList", "id,name,symbols", id, name, symbols);
  state_->cloudLists.SetInMap(id, name, symbols);
}

void CTQSymbolListMgr::UpdateCloudSymbolList(const CString& id, int /*type*/, const CString& name,
                                             const CString& symbols, int allowEmpty) noexcept {
  const tq::Operation operation("UpdateCloudSymbolList", "id,name,symbols", id, name, symbols);
  state_->cloudLists.Update(id, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::AddCloudSymbolList(const CString& id, const CString& name,
                                         const CString& symbols, int allowEmpty) noexcept {
  const tq::Operation operation("AddCloudSymbolList", "id,name,symbols", id, name, symbols);
  return state_->cloudLists.Add(id, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::SetCloudSymbolList(CPtrArray* lists, int /*unused*/) noexcept {
  const tq::Operation operation("SetCloudSymbolList");
  if (lists == nullptr)
    return tq::NoteProblem(TQProblemNull, "lists is null");
  state_->cloudLists.Replace(*lists);
  return 1;
}

CString CTQSymbolListMgr::GetCloudeList() noexcept {
  tq::CheckCall("GetCloudeList");
  return state_->cloudLists.MapText();
}

void CTQSymbolListMgr::UpdateCloudGroup(void* handle) noexcept {
  const tq::Operation operation("UpdateCloudGroup");
  if (state_->IsUsable("UpdateCloudGroup", handle))
    state_->cloudLists.UpdateGroup(handle);
}

void CTQSymbolListMgr::RefreshCloudeSymbol() noexcept {
  const tq::Operation operation("RefreshCloudeSymbol");
  state_->groups.Load(tq::kCloudGroupType);
  tq::Notify(tq::kNotifySymbols, TQReasonListNames);
}
