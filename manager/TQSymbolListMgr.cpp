// The manager's life, the list shown first, clearing lists, and the switches.
#include "manager/TQSymbolListMgr.h"

#include <algorithm>

#include "manager/ManagerState.h"

CTQSymbolListMgr::CTQSymbolListMgr() noexcept : state_(std::make_unique<tq::ManagerState>()) {}

CTQSymbolListMgr::~CTQSymbolListMgr() = default;

int CTQSymbolListMgr::Init(const char* dataDirectory, int bCN, int initSymbolTables,
                           int loadSystemLists, CStringArray* systemListNames, int useUserDefExch,
                           int loadTradingLists) noexcept {
  return state_->Start({.directory = dataDirectory,
                        .bCN = bCN,
                        .buildTables = initSymbolTables != 0,
                        .systemLists = loadSystemLists != 0,
                        .systemListNames = systemListNames,
                        .useUserDefExch = useUserDefExch,
                        .accountLists = loadTradingLists != 0});
}

CSymbolTableMgr* CTQSymbolListMgr::GetSymbolTableMgr() const noexcept {
  return state_->symbolTables.get();
}

void CTQSymbolListMgr::SetDefaultIndex(int index) noexcept {
  state_->userLists.SetDefaultIndex(index);
}

int CTQSymbolListMgr::GetDefaultListIdx(int& out) noexcept {
  out = state_->userLists.DefaultIndex();
  return state_->userLists.HasDefault();
}

void CTQSymbolListMgr::ClearSymbolList() noexcept {
  state_->userLists.Clear();
}

void CTQSymbolListMgr::ClearTSSymbolList() noexcept {
  state_->accountLists.Clear();
}

void CTQSymbolListMgr::ClearCloudSymbolList() noexcept {
  state_->cloudLists.Clear();
}

int CTQSymbolListMgr::GetbCN() const noexcept {
  return state_->bCN;
}

void CTQSymbolListMgr::SetbCN(int bCN) noexcept {
  state_->bCN = bCN;
}
