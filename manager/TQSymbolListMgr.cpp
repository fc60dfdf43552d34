// The manager's life, the list shown first, clearing lists, and the switches.
#include "manager/TQSymbolListMgr.h"

#include <algorithm>

#include "manager/ManagerState.h"
#include "platform/diagnostics/Versions.h"

CTQSymbolListMgr::CTQSymbolListMgr() noexcept : state_(std::make_unique<tq::ManagerState>()) {
  tq::ReadDebugMode();
}

CTQSymbolListMgr::~CTQSymbolListMgr() = default;

int CTQSymbolListMgr::Init(const char* dataDirectory, int bCN, int initSymbolTables,
                           int loadSystemLists, CStringArray* systemListNames, int useUserDefExch,
                           int loadTradingLists) noexcept {
  const tq::Operation operation("Init", "dataDirectory", dataDirectory);
  return state_->Start({.directory = dataDirectory,
                        .bCN = bCN,
                        .buildTables = initSymbolTables != 0,
                        .systemLists = loadSystemLists != 0,
                        .systemListNames = systemListNames,
                        .useUserDefExch = useUserDefExch,
                        .accountLists = loadTradingLists != 0});
}

int CTQSymbolListMgr::Init(const TQInitOptions& options) noexcept {
  const tq::Operation operation("Init", "dataDirectory", options.dataDirectory);
  if (!tq::VersionFits(options.version, tqSymbolVersion()))
    return tq::NoteProblem(TQProblemVersion,
                           "the terminal was compiled for version %d, this is version %d",
                           options.version, tqSymbolVersion());
  return state_->Start({.directory = options.dataDirectory,
                        .bCN = options.bCN,
                        .buildTables = options.buildTables,
                        .systemLists = options.systemLists,
                        .systemListNames = options.systemListNames,
                        .useUserDefExch = options.userDefaultExchanges ? 1 : 0,
                        .accountLists = options.accountLists});
}

CSymbolTableMgr* CTQSymbolListMgr::GetSymbolTableMgr() const noexcept {
  tq::CheckCall("GetSymbolTableMgr");
  return state_->symbolTables.get();
}

void CTQSymbolListMgr::SetDefaultIndex(int index) noexcept {
  tq::CheckCall("SetDefaultIndex");
  state_->userLists.SetDefaultIndex(index);
}

int CTQSymbolListMgr::GetDefaultListIdx(int& out) noexcept {
  tq::CheckCall("GetDefaultListIdx");
  out = state_->userLists.DefaultIndex();
  return state_->userLists.HasDefault();
}

void CTQSymbolListMgr::ClearSymbolList() noexcept {
  tq::CheckCall("ClearSymbolList");
  state_->userLists.Clear();
}

void CTQSymbolListMgr::ClearTSSymbolList() noexcept {
  tq::CheckCall("ClearTSSymbolList");
  state_->accountLists.Clear();
}

void CTQSymbolListMgr::ClearCloudSymbolList() noexcept {
  tq::CheckCall("ClearCloudSymbolList");
  state_->cloudLists.Clear();
}

int CTQSymbolListMgr::GetbCN() const noexcept {
  tq::CheckCall("GetbCN");
  return state_->bCN;
}

void CTQSymbolListMgr::SetbCN(int bCN) noexcept {
  tq::CheckCall("SetbCN");
  state_->bCN = bCN;
}
