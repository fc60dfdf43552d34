#include "manager/ManagerState.h"

#include "accounts/TradingFile.h"
#include "idlist/ListKind.h"
#include "imports/ListImport.h"
#include "platform/Log.h"
#include "platform/diagnostics/Versions.h"
#include "platform/interface/TQSymbolVersion.h"
#include "symboltable/MovedSymbols.h"

namespace tq {

ManagerState::ManagerState()
    : userLists(RenameByTables()),
      accountLists([this](int kind) -> const OwnedLists& { return ListsOf(kind); }),
      cloudLists(RenameByTables()),
      groups([this](CGroupMgr& cloudGroups) { cloudLists.RefreshGroups(cloudGroups); }) {}

int ManagerState::Start(const StartOptions& options) {
  if (!VersionFits(tqSymbolVersion(), tqFrameworkVersion()))
    return NoteProblem(TQProblemVersion, "tqFramework is of version %d, tqSymbol of version %d",
                       tqFrameworkVersion(), tqSymbolVersion());
  userLists.WantSystemLists(options.systemLists);
  accountLists.Want(options.accountLists);
  defaultExchanges.UseUsers(options.useUserDefExch);
  bCN = options.bCN;
  allSymbols.Clear();
  // The tables before the directory: while they are built the terminal may save, and must find the
  // lists of before with the directory that they are from.
  const bool built = BuildSymbolTables(options.buildTables);
  userLists.SetDirectory(options.directory);

  // Here and not only when the file is loaded: a start that fails at the tables must not leave the
  // lists of the directory before, for the next save would put them into this one. Nor may that
  // save take the file for one that has been seen.
  userLists.Reset();
  accountLists.Start(userLists.PathOf(kTradingFileName));
  if (!built)
    return 0;

  userLists.CreateMissingFile();
  userLists.Load();
  if (options.systemLists)
    userLists.StartSystemLists(options.systemListNames);
  ImportOnce(userLists);
  accountLists.AddAllHoldings();
  defaultExchanges.Init();
  if (options.buildTables)
    PassDefaultsToTables();
  allSymbols.Build(defaultExchanges.Ids());
  groups.Clear();
  return groups.LoadAll();
}

bool ManagerState::BuildSymbolTables(bool load) {
  symbolTables.reset();
  OpenLog();
  symbolTables = std::make_unique<CSymbolTableMgr>();
  if (!load)
    return true;
  symbolTables->Init();
  if (symbolTables->InitAllSymbolTable() == 0) {
    NoteProblem(TQProblemService, "the symbol tables: VLGetExch or VLGetBaseAttrs2 fails");
    return false;
  }
  if (symbolTables->InitAuthorizedExch() == 0) {
    NoteProblem(TQProblemService, "the user's exchanges: TQSGetUserInfo fails");
    return false;
  }
  return true;
}

bool ManagerState::IsGroup(const char* operation, const void* handle) const {
  if (handle == nullptr || groups.Holds(static_cast<const CGroupList*>(handle)))
    return true;
  ReportMistake(TQProblemMisuse, "%s: handle is of no group that there is now", operation);
  return false;
}

void ManagerState::PassDefaultsToTables() {
  CUIntArray ids;
  ids.Copy(defaultExchanges.Ids());
  symbolTables->InitDefaultExchList(ids);
}

const OwnedLists& ManagerState::ListsOf(int kind) const {
  switch (kind) {
  case kUserLists:
    return userLists.Lists();
  case kTradingLists:
    return accountLists.Lists();
  case kCloudLists:
    return cloudLists.Lists();
  default:
    return noLists_;
  }
}

bool ManagerState::HasKind(int kind) {
  return kind == kUserLists || kind == kTradingLists || kind == kCloudLists;
}

bool ManagerState::RenameSymbols(CString& ids, const CString& oldExchange,
                                 const CString& newExchange) const {
  return symbolTables != nullptr && MoveSymbols(*symbolTables, ids, oldExchange, newExchange) != 0;
}

RenameMoved ManagerState::RenameByTables() {
  return [this](CString& ids) { return RenameSymbols(ids, kMovedFromExchange, kMovedToExchange); };
}

void ManagerState::ReloadDefaultExchanges(bool force) {
  if (!force && !defaultExchanges.HaveChanged()) {
    if (allSymbols.IsEmpty())
      allSymbols.Build(defaultExchanges.Ids());
    return;
  }
  defaultExchanges.Init();
  allSymbols.Build(defaultExchanges.Ids());
  if (symbolTables != nullptr)
    PassDefaultsToTables();
}

} // namespace tq
