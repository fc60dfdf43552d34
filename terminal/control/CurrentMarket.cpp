// The market that the services serve.
#include "terminal/control/GroupRecords.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Parts.h"
#include "terminal/control/TradingRecords.h"

namespace standin {
namespace {

struct Current {
  Market market;
  Listings listings;
  GroupRecords groups;
  TradingRecords trading;
};

Current& TheCurrent() {
  static Current current;
  return current;
}

template <class T> std::size_t IndexIn(const std::vector<T>& records, const T& record) {
  return static_cast<std::size_t>(&record - records.data());
}

TradingSystem& Changeable(const TradingSystem& system) {
  std::vector<TradingSystem>& systems = TheCurrent().market.tradingSystems;
  return systems[IndexIn(systems, system)];
}

} // namespace

void SetMarket(Market market) {
  Current& current = TheCurrent();
  current.market = std::move(market);
  current.listings.Build(current.market);
  current.groups.Build(current.market, current.listings);
  current.trading.Build(current.market);
}

const Market& CurrentMarket() {
  return TheCurrent().market;
}

const Listings& CurrentListings() {
  return TheCurrent().listings;
}

const GroupRecords& CurrentGroups() {
  return TheCurrent().groups;
}

const TradingRecords& CurrentTradingRecords() {
  return TheCurrent().trading;
}

// The proxy's records contain neither holdings nor status, so they need no update.
bool SetHoldings(std::string_view tsId, std::string_view accountId, int type,
                 std::string_view holdings) {
  const TradingSystem* system = FindSystem(tsId);
  const TradingAccount* account = FindAccount(tsId, accountId, type);
  if (!account)
    return false;
  Changeable(*system).accounts[IndexIn(system->accounts, *account)].holdings = holdings;
  return true;
}

bool SetAvailable(std::string_view tsId, bool available) {
  const TradingSystem* system = FindSystem(tsId);
  if (!system)
    return false;
  Changeable(*system).available = available;
  return true;
}

void Reset() {
  ResetLanguage();
  SetMarket(Market());
  ResetScript();
  ResetReleases();
  ResetReports();
  ResetAnswers();
  ResetIndicators();
}

} // namespace standin
