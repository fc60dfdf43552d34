// Default exchanges and the order of exchanges, single symbols, and symbols that change.
#include "exchanges/SymbolInfos.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/SymbolChanges.h"
#include "symboltable/LiveTables.h"

int CTQSymbolListMgr::InitDefaultExchange() noexcept {
  const tq::Operation operation("InitDefaultExchange");
  return state_->defaultExchanges.Init();
}

int CTQSymbolListMgr::LoadDefaultExchange(CUIntArray& ids, int useUser,
                                          const char* /*unused*/) noexcept {
  const tq::Operation operation("LoadDefaultExchange");
  state_->defaultExchanges.Read(ids, useUser != 0);
  return 1;
}

int CTQSymbolListMgr::DoLoadDefaultExchange(CUIntArray& ids) noexcept {
  const tq::Operation operation("DoLoadDefaultExchange");
  return tq::ReadDefaultExchangeIds(ids) ? 1 : 0;
}

int CTQSymbolListMgr::DoLoadUserDefaultExchange(CUIntArray& ids) noexcept {
  const tq::Operation operation("DoLoadUserDefaultExchange");
  ids.Copy(state_->defaultExchanges.Users());
  return 1;
}

void CTQSymbolListMgr::ClearDefaultExchangeData() noexcept {
  tq::CheckCall("ClearDefaultExchangeData");
  state_->defaultExchanges.Clear();
}

int CTQSymbolListMgr::GetDefaultExchange(int index) noexcept {
  tq::CheckCall("GetDefaultExchange");
  return static_cast<int>(state_->defaultExchanges.Ids().GetAt(index));
}

int CTQSymbolListMgr::GetDefaultExchangeCount() noexcept {
  tq::CheckCall("GetDefaultExchangeCount");
  return state_->defaultExchanges.Ids().GetSize();
}

int CTQSymbolListMgr::IsDefaultExchange(int exchId) noexcept {
  tq::CheckCall("IsDefaultExchange");
  return state_->defaultExchanges.Contains(exchId);
}

int CTQSymbolListMgr::IsDefaultExchangeChange() noexcept {
  tq::CheckCall("IsDefaultExchangeChange");
  return state_->defaultExchanges.HaveChanged();
}

void CTQSymbolListMgr::ReLoadDefaultExch(int force) noexcept {
  const tq::Operation operation("ReLoadDefaultExch");
  state_->ReloadDefaultExchanges(force != 0);
}

int CTQSymbolListMgr::UpdateDefaultExch(CUIntArray& ids) noexcept {
  const tq::Operation operation("UpdateDefaultExch");
  state_->defaultExchanges.SetUsers(ids);
  state_->ReloadDefaultExchanges(true);
  return 1;
}

void CTQSymbolListMgr::SetUseUserDefExch(int use) noexcept {
  tq::CheckCall("SetUseUserDefExch");
  state_->defaultExchanges.UseUsers(use);
}

int CTQSymbolListMgr::IsUseUserDefExch() const noexcept {
  tq::CheckCall("IsUseUserDefExch");
  return state_->defaultExchanges.UsesUsers();
}

int CTQSymbolListMgr::LoadDefExchOrder(CUIntArray& order) noexcept {
  const tq::Operation operation("LoadDefExchOrder");
  state_->defaultExchanges.SetOrder(order);
  return !state_->defaultExchanges.Order().IsEmpty();
}

void CTQSymbolListMgr::GetDefExchOrder(CUIntArray& order) noexcept {
  tq::CheckCall("GetDefExchOrder");
  order.Copy(state_->defaultExchanges.Order());
}

// Whatever the order, it is accepted as it is.
int CTQSymbolListMgr::CheckExchOrder(CUIntArray& /*order*/) noexcept {
  tq::CheckCall("CheckExchOrder");
  return 1;
}

void CTQSymbolListMgr::SortAllSymbolByExch() noexcept {
  const tq::Operation operation("SortAllSymbolByExch");
  state_->allSymbols.Build(state_->defaultExchanges.Ids());
}

int CTQSymbolListMgr::CheckAllSymbolByExch() noexcept {
  tq::CheckCall("CheckAllSymbolByExch");
  return state_->allSymbols.IsEmpty();
}

int CTQSymbolListMgr::GetTradeLotSize(const CString& id, CSymbolTableMgr* tables,
                                      JT_DEAL kind) noexcept {
  tq::CheckCall("GetTradeLotSize", "id", id);
  return tq::TradeLotSize(id, tq::LiveTables("GetTradeLotSize", tables), kind);
}

int CTQSymbolListMgr::UpdateExchSymbolChange(int count, const char* symbols, short /*exch*/,
                                             ExchSymbolUpdateType type) noexcept {
  const tq::Operation operation("UpdateExchSymbolChange");
  CStringArray changed;
  tq::ReadChangedSymbols(symbols, count, changed);
  tq::ResolveHolders(state_->userLists.Lists(), changed);
  tq::ResolveHolders(state_->accountLists.Lists(), changed);
  if (type == ExchSymbolsAdded)
    tq::ResolveHolders(state_->cloudLists.Lists(), changed);
  return 1;
}

int CTQSymbolListMgr::ReplaceSymbolListExchID(CString& ids, const CString& oldExchange,
                                              const CString& newExchange) noexcept {
  const tq::Operation operation("ReplaceSymbolListExchID", "oldExchange,newExchange", oldExchange,
                                newExchange);
  return state_->RenameSymbols(ids, oldExchange, newExchange);
}

int CTQSymbolListMgr::ReplaceSymbolListExchID(CSymbolList* list, const CString& oldExchange,
                                              const CString& newExchange) noexcept {
  const tq::Operation operation("ReplaceSymbolListExchID", "oldExchange,newExchange", oldExchange,
                                newExchange);
  return list != nullptr && tq::RenameMovedIn(*list, [&](CString& ids) {
           return state_->RenameSymbols(ids, oldExchange, newExchange);
         });
}
