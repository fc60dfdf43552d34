#include "bench/Trading.h"

#include <boost/unordered/unordered_flat_set.hpp>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/Maps.h"
#include "bench/Universe.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoal = 1.5;
constexpr int kStocks = 1;
constexpr char kSystem[] = "T";

using IdSet = boost::unordered_flat_set<std::string_view, TextHash, std::equal_to<>>;

// One trading system. Its accounts have no exchange, so that a login resolves no symbols; merging
// never does.
standin::Market MakeAccounts(const std::vector<std::string>& ids, std::size_t accounts,
                             std::size_t positions) {
  constexpr unsigned kSeed = 33;
  std::mt19937 random(kSeed);
  standin::TradingSystem system{kSystem, kSystem, kSystem, true, {}};
  for (std::size_t i = 0; i < accounts; ++i) {
    standin::TradingAccount account{kStocks, std::to_string(i), std::to_string(i), ""};
    for (std::size_t k = 0; k < positions; ++k)
      account.holdings += (k > 0 ? "," : "") + ids[random() % ids.size()];
    system.accounts.push_back(std::move(account));
  }
  standin::Market market;
  market.tradingSystems.push_back(std::move(system));
  return market;
}

// The same with a standard hash set.
std::string Merge(const standin::TradingSystem& system) {
  IdSet seen;
  std::string merged;
  for (const standin::TradingAccount& account : system.accounts) {
    const std::string_view text = account.holdings;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find(',', at), text.size());
      const std::string_view id = text.substr(at, end - at);
      if (seen.insert(id).second)
        (merged.empty() ? merged : merged += ',') += id;
      at = end + 1;
    }
  }
  return merged;
}

void MeasureMerging(Report& report, std::size_t accounts, std::size_t positions) {
  constexpr std::size_t kRepetitions = 21;
  CTQSymbolListMgr manager;
  manager.Init("", 0, 0, 0, nullptr, 0, 1);
  manager.UpdateTSLogin(kSystem);
  const standin::TradingSystem& system = standin::CurrentMarket().tradingSystems[0];
  CString symbols;
  std::string expected;
  const auto library = [&] {
    symbols.Empty();
    return Computing(
        [&] { manager.GetTSSymbolLists(kSystem, static_cast<TqsAccType>(kStocks), symbols); });
  };
  const auto peer = [&] { return Computing([&] { expected = Merge(system); }); };
  const Figure figure = Compare(kRepetitions, library, peer);
  const std::string title = std::to_string(accounts) + " x " + std::to_string(positions);
  report.Ratio("merged holdings, " + title + " / flat set", figure, kGoal, accounts * positions);
  if (expected.empty() || expected != symbols.GetString())
    report.Wrong("merged holdings");
}

} // namespace

void MeasureTrading(Report& report, standin::Market market, bool quick) {
  report.Section("holdings of trading accounts");
  const std::vector<std::string> ids = FullIds(market);
  const std::size_t positions = quick ? 100 : 1000;
  for (const std::size_t accounts : {std::size_t{10}, std::size_t{100}, std::size_t{1000}}) {
    standin::SetMarket(MakeAccounts(ids, accounts, positions));
    MeasureMerging(report, accounts, positions);
  }
  standin::SetMarket(std::move(market));
}

} // namespace bench
