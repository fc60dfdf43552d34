#include "terminal/demo/Services.h"

#include <cstdio>

#include "terminal/StandIn.h"
#include "terminal/demo/Accounts.h"
#include "terminal/demo/Cloud.h"
#include "terminal/demo/Groups.h"
#include "terminal/demo/Import.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Written.h"

namespace demo {
namespace {

// The number of lists in the directory's file before the import adds to them; -1 when no manager
// can be started on it.
int CountLists(const std::string& directory) {
  CTQSymbolListMgr manager;
  return manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0
             ? manager.GetSymbolListCount(kUserLists)
             : -1;
}

} // namespace

bool ShowServices(const std::string& directory, std::string& error) {
  const int lists = CountLists(directory);
  if (!WriteImportFile(directory)) {
    error = directory + ": cannot be written to";
    return false;
  }
  standin::ClearCalls();
  CTQSymbolListMgr manager;
  if (lists < 0 || manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 1) == 0) {
    error = "the symbol tables could not be built";
    return false;
  }
  ShowGroups(manager);
  return ShowCloud(manager, error) && ShowAccounts(manager, error) &&
         ShowImport(manager, directory, lists, error) && ShowWritten(directory, error);
}

} // namespace demo
