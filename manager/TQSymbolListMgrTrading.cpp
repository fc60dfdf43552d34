// Lists from trading accounts.
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::LoadTSList() noexcept {
  const tq::Operation operation("LoadTSList");
  return state_->accountLists.AddAllHoldings();
}

void CTQSymbolListMgr::UpdateTSLogin(CString tsId) noexcept {
  const tq::Operation operation("UpdateTSLogin", "tsId", tsId);
  state_->accountLists.UpdateLogin(tsId);
}

void CTQSymbolListMgr::UpDataTSAccHodling(CString tsId, CString accountId,
                                          TqsAccType type) noexcept {
  const tq::Operation operation("UpDataTSAccHodling", "tsId,accountId", tsId, accountId);
  state_->accountLists.UpdateHoldings(tsId, accountId, type);
}

void CTQSymbolListMgr::BuildTSListToSymbolList() noexcept {
  const tq::Operation operation("BuildTSListToSymbolList");
  state_->accountLists.BuildOfSystems();
}

int CTQSymbolListMgr::AddTSSymbolList(const CString& id, int kind, const CString& name,
                                      const CString& symbols, int allowEmpty) noexcept {
  const tq::Operation operation("AddTSSymbolList", "id,name,symbols", id, name, symbols);
  return state_->accountLists.Add(id, kind, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::UpdateTSSymbolList(const CString& id, int kind, const CString& name,
                                         const CString& symbols, int allowEmpty) noexcept {
  const tq::Operation operation("UpdateTSSymbolList", "id,name,symbols", id, name, symbols);
  return state_->accountLists.Update(id, kind, name, symbols, allowEmpty != 0);
}

int CTQSymbolListMgr::DeleteTSSymbolList(CString id) noexcept {
  const tq::Operation operation("DeleteTSSymbolList", "id", id);
  return state_->accountLists.Delete(id);
}

int CTQSymbolListMgr::GetTSAccHodling(const CString& tsId, const CString& accountId,
                                      CString& symbols) noexcept {
  tq::CheckCall("GetTSAccHodling", "tsId,accountId", tsId, accountId);
  return state_->accountLists.HoldingsOf(tsId, accountId, symbols);
}

int CTQSymbolListMgr::GetTSSymbolLists(const CString& tsId, TqsAccType type,
                                       const CString& accountId, CString& symbols) noexcept {
  tq::CheckCall("GetTSSymbolLists", "tsId,accountId", tsId, accountId);
  return state_->accountLists.HoldingsOf(tsId, type, accountId, symbols);
}

int CTQSymbolListMgr::GetTSSymbolLists(const CString& tsId, TqsAccType type,
                                       CString& symbols) noexcept {
  tq::CheckCall("GetTSSymbolLists", "tsId", tsId);
  return state_->accountLists.HoldingsOf(tsId, type, symbols);
}
