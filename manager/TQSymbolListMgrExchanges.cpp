// Default exchanges and the order of exchanges, single symbols, and symbols that change.
#include "exchanges/SymbolInfos.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "symbollist/SymbolChanges.h"

int CTQSymbolListMgr::InitDefaultExchange() noexcept {
  return state_->defaultExchanges.Init();
}

int CTQSymbolListMgr::LoadDefaultExchange(CUIntArray& ids, int useUser,
                                          const char* /*unused*/) noexcept {
  state_->defaultExchanges.Read(ids, useUser != 0);
  return 1;
}

int CTQSymbolListMgr::DoLoadDefaultExchange(CUIntArray& ids) noexcept {
  return tq::ReadDefaultExchangeIds(ids) ? 1 : 0;
}

int CTQSymbolListMgr::DoLoadUserDefaultExchange(CUIntArray& ids) noexcept {
  ids.Copy(state_->defaultExchanges.Users());
  return 1;
}

void CTQSymbolListMgr::ClearDefaultExchangeData() noexcept {
  state_->defaultExchanges.Clear();
}

int CTQSymbolListMgr::GetDefaultExchange(int index) noexcept {
  return static_cast<int>(state_->defaultExchanges.Ids().GetAt(index));
}

int CTQSymbolListMgr::GetDefaultExchangeCount() noexcept {
  return state_->defaultExchanges.Ids().GetSize();
}

int CTQSymbolListMgr::IsDefaultExchange(int exchId) noexcept {
  return state_->defaultExchanges.Contains(exchId);
}

int CTQSymbolListMgr::IsDefaultExchangeChange() noexcept {
  return state_->defaultExchanges.HaveChanged();
}

void CTQSymbolListMgr::ReLoadDefaultExch(int force) noexcept {
  state_->ReloadDefaultExchanges(force != 0);
}

int CTQSymbolListMgr::UpdateDefaultExch(CUIntArray& ids) noexcept {
  state_->defaultExchanges.SetUsers(ids);
  state_->ReloadDefaultExchanges(true);
  return 1;
}

void CTQSymbolListMgr::SetUseUserDefExch(int use) noexcept {
  state_->defaultExchanges.UseUsers(use);
}

int CTQSymbolListMgr::IsUseUserDefExch() const noexcept {
  return state_->defaultExchanges.UsesUsers();
}

int CTQSymbolListMgr::LoadDefExchOrder(CUIntArray& order) noexcept {
  state_->defaultExchanges.SetOrder(order);
  return !state_->defaultExchanges.Order().IsEmpty();
}

void CTQSymbolListMgr::GetDefExchOrder(CUIntArray& order) noexcept {
  order.Copy(state_->defaultExchanges.Order());
}

// Whatever the order, it is accepted as it is.
int CTQSymbolListMgr::CheckExchOrder(CUIntArray& /*order*/) noexcept {
  return 1;
}

void CTQSymbolListMgr::SortAllSymbolByExch() noexcept {
  state_->allSymbols.Build(state_->defaultExchanges.Ids());
}

int CTQSymbolListMgr::CheckAllSymbolByExch() noexcept {
  return state_->allSymbols.IsEmpty();
}

int CTQSymbolListMgr::GetTradeLotSize(const CString& id, CSymbolTableMgr* tables,
                                      JT_DEAL kind) noexcept {
  return tq::TradeLotSize(id, tables, kind);
}

int CTQSymbolListMgr::UpdateExchSymbolChange(int count, const char* symbols, short /*exch*/,
                                             ExchSymbolUpdateType type) noexcept {
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
  return state_->RenameSymbols(ids, oldExchange, newExchange);
}

int CTQSymbolListMgr::ReplaceSymbolListExchID(CSymbolList* list, const CString& oldExchange,
                                              const CString& newExchange) noexcept {
  return list != nullptr && tq::RenameMovedIn(*list, [&](CString& ids) {
           return state_->RenameSymbols(ids, oldExchange, newExchange);
         });
}
