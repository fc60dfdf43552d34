// Reads a market directory.
#include <algorithm>
#include <limits>
#include <unordered_map>

#include "platform/services/VLRecords.h"
#include "terminal/StandIn.h"
#include "terminal/control/AccountRows.h"
#include "terminal/control/GroupRows.h"
#include "terminal/control/IndicatorRows.h"
#include "terminal/control/MarketText.h"

namespace standin {
namespace {

constexpr std::size_t kLongestSymbolId = sizeof(SymbolInfo::id) - 1;
constexpr std::size_t kLongestSymbolName = sizeof(SymbolInfo::name) - 1;
constexpr std::size_t kLongestExchange = sizeof(ExchInfo::name) - 1;
constexpr int kMostDecimals = 9;

using ExchangeIds = std::unordered_map<std::string_view, int>;

bool IsPrice(std::string_view text) {
  const std::size_t point = std::min(text.find('.'), text.size());
  const auto digits = [](std::string_view part) {
    return !part.empty() &&
           std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
  };
  return digits(text.substr(0, point)) && (point == text.size() || digits(text.substr(point + 1)));
}

bool AddExchange(TableFile& file, const TableFile::Row& row, Market& market) {
  const std::optional<int> id = ParseNumber(row[0], 1, std::numeric_limits<short>::max());
  if (!id)
    return file.Refuse("the id is no number from 1 to 32767");
  if (row[1].empty() || row[1].size() > kLongestExchange || !IsPlain(row[1]) ||
      row[1].find_first_of(".,:") != std::string_view::npos)
    return file.Refuse("the name is not 1 to 19 ASCII characters without \".\", \",\" and \":\"");
  for (const Exchange& exchange : market.exchanges)
    if (exchange.id == *id || exchange.name == row[1])
      return file.Refuse("the id or the name stands twice");
  market.exchanges.push_back({*id, std::string(row[1]), std::string(row[2]), std::string(row[3])});
  return true;
}

bool CheckCode(TableFile& file, std::string_view exchange, std::string_view code) {
  if (code.empty() || code.size() > kLongestSymbolId || !IsPlain(code) ||
      code.find_first_of(",:") != std::string_view::npos)
    return file.Refuse("the code is not 1 to 19 ASCII characters without \",\" and \":\"");
  if (code.size() + 1 + exchange.size() > kLongestSymbolId)
    return file.Refuse("the full id is longer than 19 characters");
  return true;
}

bool AddInstrument(TableFile& file, const TableFile::Row& row, const ExchangeIds& exchanges,
                   Market& market) {
  const auto exchange = exchanges.find(row[0]);
  if (exchange == exchanges.end())
    return file.Refuse("unknown exchange");
  if (!CheckCode(file, row[0], row[1]))
    return false;
  if (!Fits(row[2], kLongestSymbolName) || !Fits(row[3], kLongestSymbolName))
    return file.Refuse("a name is longer than 30 bytes");
  const std::optional<int> decimals = ParseNumber(row[5], 0, kMostDecimals);
  if (!decimals)
    return file.Refuse("decimals is no number from 0 to 9");
  const std::optional<int> lot = ParseNumber(row[6], 1, std::numeric_limits<int>::max());
  if (!lot)
    return file.Refuse("lot is no number from 1 up");
  Instrument instrument{exchange->second,
                        std::string(row[1]),
                        std::string(row[2]),
                        std::string(row[3]),
                        std::string(row[4]),
                        *decimals,
                        *lot,
                        true,
                        OptionalText(row[7]),
                        OptionalText(row[8]),
                        {}};
  if (!instrument.price.empty() && !IsPrice(instrument.price))
    return file.Refuse("price is no decimal number");
  if (!instrument.exchangeCode.empty() && !CheckCode(file, "", instrument.exchangeCode))
    return false;
  market.instruments.push_back(std::move(instrument));
  return true;
}

bool SetUserValue(TableFile& file, const TableFile::Row& row, Market& market) {
  if (row[0] == "entitled")
    market.entitled = OptionalText(row[1]);
  else if (row[0] == "defaults")
    market.defaults = OptionalText(row[1]);
  else if (row[0] == "full_menu_key")
    market.fullMenuKey = OptionalText(row[1]);
  else
    return file.Refuse("unknown key");
  return true;
}

enum class Presence { Required, Optional };

// Opens the file and calls `add` with each of its records until one is refused.
template <class Add>
bool ReadFile(TableFile& file, const std::string& directory, Presence presence, Add add) {
  if (!file.Open(directory))
    return presence == Presence::Optional && !file.Exists();
  while (true) {
    const TableFile::Row& row = file.Next();
    if (row.empty())
      return file.Error().empty();
    if (!add(row))
      return false;
  }
}

ExchangeIds IdsByName(const Market& market) {
  ExchangeIds ids;
  for (const Exchange& exchange : market.exchanges)
    ids.emplace(exchange.name, exchange.id);
  return ids;
}

} // namespace

bool LoadMarket(const std::string& directory, Market& market, std::string& error) {
  TableFile exchanges("exchanges.tsv", "id\tname\ttitle_tw\ttitle_cn");
  TableFile symbols("symbols.tsv", "exchange\tcode\tname_tw\tname_cn\tkind\tdecimals\tlot\tprice\t"
                                   "exchange_code");
  TableFile groups("groups.tsv", GroupRows::kColumns);
  TableFile accounts("accounts.tsv", AccountRows::kColumns);
  TableFile indicators("indicators.tsv", IndicatorRows::kColumns);
  TableFile user("user.tsv", "key\tvalue");
  Market read;
  const auto fail = [&error](const TableFile& file) {
    error = file.Error();
    return false;
  };
  using Row = TableFile::Row;
  if (!ReadFile(exchanges, directory, Presence::Required,
                [&](const Row& row) { return AddExchange(exchanges, row, read); }))
    return fail(exchanges);
  const ExchangeIds ids = IdsByName(read);
  if (!ReadFile(symbols, directory, Presence::Required,
                [&](const Row& row) { return AddInstrument(symbols, row, ids, read); }))
    return fail(symbols);
  GroupRows groupRows(groups, read.groups);
  if (!ReadFile(groups, directory, Presence::Optional,
                [&](const Row& row) { return groupRows.Add(row); }))
    return fail(groups);
  AccountRows accountRows(accounts, read.tradingSystems);
  if (!ReadFile(accounts, directory, Presence::Optional,
                [&](const Row& row) { return accountRows.Add(row); }))
    return fail(accounts);
  IndicatorRows indicatorRows(indicators, read.indicators);
  if (!ReadFile(indicators, directory, Presence::Optional,
                [&](const Row& row) { return indicatorRows.Add(row); }))
    return fail(indicators);
  if (!ReadFile(user, directory, Presence::Optional,
                [&](const Row& row) { return SetUserValue(user, row, read); }))
    return fail(user);
  market = std::move(read);
  return true;
}

} // namespace standin
