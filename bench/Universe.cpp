#include "bench/Universe.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <string_view>

#include "platform/services/tqStock.h"

namespace bench {
namespace {

constexpr int kExchanges = 20;
constexpr const char* kDefaults = "1,2,3";

constexpr const char* kCompanies[] = {"台泥", "聯電", "鴻海", "中鋼",
                                      "國巨", "長榮", "富邦", "元大"};
constexpr const char* kIndustries[] = {"水泥工業", "半導體業", "電子零組件業",
                                       "鋼鐵工業", "航運業",   "金融保險業"};
constexpr const char* kMonths[] = {"202612", "202701", "202702", "202703", "202706", "202709"};

enum Column { ColumnExchange, ColumnCode, ColumnName, ColumnType, ColumnIndustry, ColumnCount };
using Line = std::array<std::string, ColumnCount>;

bool SplitLine(const std::string& text, Line& line) {
  std::size_t at = 0;
  for (int column = 0; column < ColumnCount; ++column) {
    const std::size_t tab = text.find('\t', at);
    if ((tab == std::string::npos) != (column == ColumnCount - 1))
      return false;
    line[static_cast<std::size_t>(column)] = text.substr(at, tab - at);
    at = tab + 1;
  }
  return true;
}

const char* KindOf(std::string_view type) {
  if (type.find("權證") != std::string_view::npos)
    return "warrant";
  if (type == "ETF")
    return "etf";
  if (type == "ETN")
    return "etn";
  return type == "特別股" ? "preferred" : "stock";
}

standin::Instrument FromLine(const Line& line, int exchId) {
  standin::Instrument instrument;
  instrument.exchId = exchId;
  instrument.code = line[ColumnCode];
  instrument.nameTw = line[ColumnName];
  instrument.nameCn = line[ColumnName];
  instrument.kind = KindOf(line[ColumnType]);
  if (!line[ColumnIndustry].empty())
    instrument.fields.push_back({FieldIndustry, line[ColumnIndustry]});
  return instrument;
}

// Three shapes of codes. Each contains the whole `number`, so all are different.
standin::Instrument Generated(unsigned number, int exchId) {
  constexpr unsigned kFive = 100000;
  standin::Instrument instrument;
  instrument.exchId = exchId;
  const char letter = static_cast<char>('A' + number / kFive);
  char code[16];
  if (number % 10 < 3) {
    instrument.kind = "stock";
    instrument.fields = {{FieldIndustry, kIndustries[number % std::size(kIndustries)]}};
    std::snprintf(code, sizeof(code), "%06u", number);
  } else if (number % 10 < 7) {
    instrument.kind = "warrant";
    std::snprintf(code, sizeof(code), "%05u%c", number % kFive, letter);
  } else {
    instrument.kind = "option";
    instrument.lot = 1;
    instrument.fields = {{FieldUnderlying, "IX0001"},
                         {FieldContractMonth, kMonths[number % std::size(kMonths)]}};
    std::snprintf(code, sizeof(code), "TXO%05u%c%u", number % kFive, letter, number % 10);
  }
  instrument.code = code;
  instrument.fields.push_back({FieldCurrency, "TWD"});
  instrument.nameTw = kCompanies[number / 10 % std::size(kCompanies)] + instrument.code;
  instrument.nameCn = instrument.nameTw;
  return instrument;
}

} // namespace

bool ReadListings(const std::string& path, Universe& universe, std::string& error) {
  std::ifstream file(path);
  std::string text;
  if (!std::getline(file, text)) {
    error = path + ": cannot be read";
    return false;
  }
  std::map<std::string, int> exchanges;
  standin::Market market;
  for (Line line; std::getline(file, text);) {
    if (!SplitLine(text, line)) {
      error = path + ": not five columns: " + text;
      return false;
    }
    const auto [place, added] =
        exchanges.try_emplace(line[ColumnExchange], static_cast<int>(exchanges.size()) + 1);
    if (added)
      market.exchanges.push_back({place->second, place->first, place->first, place->first});
    market.instruments.push_back(FromLine(line, place->second));
  }
  market.entitled = kDefaults;
  market.defaults = kDefaults;
  universe = {"a real market's listings", std::move(market)};
  return true;
}

Universe GenerateUniverse(std::size_t count) {
  standin::Market market;
  for (int id = 1; id <= kExchanges; ++id) {
    const std::string name = "X" + std::to_string(id);
    market.exchanges.push_back({id, name, name, name});
  }
  market.instruments.reserve(count);
  for (std::size_t i = 0; i < count; ++i)
    market.instruments.push_back(
        Generated(static_cast<unsigned>(i), static_cast<int>(i / 10 % kExchanges) + 1));
  market.entitled = kDefaults;
  market.defaults = kDefaults;
  return {"generated, " + std::to_string(kExchanges) + " exchanges", std::move(market)};
}

std::vector<std::string> FullIds(const standin::Market& market) {
  std::map<int, std::string> names;
  for (const standin::Exchange& exchange : market.exchanges)
    names.emplace(exchange.id, exchange.name);
  std::vector<std::string> ids;
  ids.reserve(market.instruments.size());
  for (const standin::Instrument& instrument : market.instruments)
    ids.push_back(instrument.code + "." + names[instrument.exchId]);
  return ids;
}

} // namespace bench
