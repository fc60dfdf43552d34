#include "terminal/demo/Accounts.h"

#include <cstdio>

#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Sample.h"
#include "terminal/demo/Steps.h"

namespace demo {
namespace {

constexpr int kTradingLists = 6;

// The id of an account's list is the kind of the account followed by its id.
std::string ListIdOf(const standin::TradingAccount& account) {
  return std::to_string(account.type) + account.id;
}

bool HasLists(CTQSymbolListMgr& manager, const standin::TradingSystem& system) {
  for (const standin::TradingAccount& account : system.accounts) {
    CString ids;
    if (manager.GetSymbolListIDs(kTradingLists, ListIdOf(account).c_str(), ids, nullptr) == 0)
      return false;
  }
  return true;
}

void LogIn(CTQSymbolListMgr& manager, const standin::TradingSystem& system, Steps& steps) {
  manager.UpdateTSLogin(system.id.c_str());
  steps.Step("UpdateTSLogin: " + system.id + " " +
                 (IsTraditionChinese() != 0 ? system.nameTw : system.nameCn),
             HasLists(manager, system));
  PrintListRows(manager, kTradingLists, 0);
}

// The first symbol of the market that is not among the ids; empty when there is none.
std::string NewSymbol(const std::string& ids) {
  std::string symbol;
  for (size_t i = 0; i == 0 || !symbol.empty(); ++i) {
    symbol = SomeSymbols(i, 1);
    if (("," + ids + ",").find("," + symbol + ",") == std::string::npos)
      break;
  }
  return symbol;
}

// The first account of the market buys a stock. A trading system has at least one account.
void Fill(CTQSymbolListMgr& manager, Steps& steps) {
  const standin::TradingSystem& system = standin::CurrentMarket().tradingSystems.front();
  const standin::TradingAccount& account = system.accounts.front();
  const std::string held = account.holdings;
  const std::string bought = NewSymbol(held);
  if (bought.empty())
    return;
  standin::SetHoldings(system.id, account.id, account.type,
                       held + (held.empty() ? "" : ",") + bought);
  manager.UpDataTSAccHodling(system.id.c_str(), account.id.c_str(),
                             static_cast<TqsAccType>(account.type));
  CString ids;
  manager.GetTSAccHodling(system.id.c_str(), account.id.c_str(), ids);
  steps.Step("UpDataTSAccHodling: " + account.displayId + " bought " + bought,
             standin::FromAnsi(ids.GetString()) == account.holdings);
  PrintListRows(manager, kTradingLists, 0);
}

} // namespace

bool ShowAccounts(CTQSymbolListMgr& manager, std::string& error) {
  std::printf("\nLists from trading accounts\n");
  const std::vector<standin::TradingSystem>& systems = standin::CurrentMarket().tradingSystems;
  Steps steps;
  if (systems.empty()) {
    steps.Note("no trading systems in this market; without a login there is one list, empty");
    PrintListRows(manager, kTradingLists, 0);
    return true;
  }
  for (const standin::TradingSystem& system : systems)
    LogIn(manager, system, steps);
  Fill(manager, steps);
  error = steps.Error();
  return error.empty();
}

} // namespace demo
