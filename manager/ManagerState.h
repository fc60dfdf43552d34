// What a manager of symbol lists is made of: one owner for each capability, and what needs several
// of them.
#pragma once

#include <memory>
#include <vector>

#include "accounts/AccountLists.h"
#include "cloud/CloudLists.h"
#include "exchanges/AllSymbols.h"
#include "exchanges/DefaultExchanges.h"
#include "groups/GroupStore.h"
#include "platform/diagnostics/Operation.h"
#include "symbollist/UserLists.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {

// The arguments of CTQSymbolListMgr::Init.
struct StartOptions {
  CString directory;
  int bCN;
  bool buildTables;
  bool systemLists;
  const CStringArray* systemListNames; // may be null
  int useUserDefExch;
  bool accountLists;
};

// The services may let the terminal call any operation of the manager from within another one, a
// start included: what is read from here before a service is asked may be another thing behind it.
struct ManagerState {
  ManagerState();

  int Start(const StartOptions& options);
  // The lists of a kind; empty ones for a kind that has none, of which HasKind tells.
  const OwnedLists& ListsOf(int kind) const;
  static bool HasKind(int kind);
  bool RenameSymbols(CString& ids, const CString& oldExchange, const CString& newExchange) const;
  void ReloadDefaultExchanges(bool force);
  // Whether a group's handle may be used. The debug mode looks for it among the groups that there
  // are, and reports one that is not; without it every handle may.
  bool IsUsable(const char* operation, const void* handle) const {
    return !IsDebugging() || IsGroup(operation, handle);
  }

  std::unique_ptr<CSymbolTableMgr> symbolTables; // null before the first start
  DefaultExchanges defaultExchanges;
  AllSymbols allSymbols;
  UserLists userLists;
  AccountLists accountLists;
  CloudLists cloudLists;
  GroupStore groups;
  std::vector<CString> extraInfo;
  int bCN = 0;

private:
  bool BuildSymbolTables(bool load);
  bool IsGroup(const char* operation, const void* handle) const;
  void PassDefaultsToTables();
  RenameMoved RenameByTables();

  OwnedLists noLists_;
};

} // namespace tq
