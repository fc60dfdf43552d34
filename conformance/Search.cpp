// VLProxy: what a typed text finds, and contracts by their bare code.
#include <algorithm>
#include <set>

#include "Checks.h"
#include "CodePage.h"
#include "Received.h"

namespace conformance {
namespace {

constexpr int kEveryExchange = -1;
constexpr int kNamesOfTheMoment = 0;
// Searches go through the whole market: so many of each exchange, however many it lists.
constexpr std::size_t kSearches = 3;
constexpr std::size_t kQuickContracts = 20;

bool ContainsName(std::string_view name, const std::string& text) {
  return tq::FindText(name.data(), name.data() + name.size(), text.c_str(), text.size()) != nullptr;
}

bool Matches(const SymbolInfo& symbol, const std::string& text) {
  return BeginsNoCase(FieldText(symbol.id), text) || BeginsNoCase(FieldText(symbol.code), text) ||
         ContainsName(FieldText(symbol.name), text);
}

// The results' places in the market; those of no listed symbol are findings.
std::vector<std::size_t> PlacesOf(Report& report, const Market& market,
                                  std::span<const SymbolInfo> records) {
  std::vector<std::size_t> places;
  std::set<std::size_t> seen;
  for (const SymbolInfo& record : records) {
    const SymbolInfo* const listed = market.Find(IdOf(record));
    const bool good = listed != nullptr && IsSame(*listed, record) &&
                      seen.insert(market.PositionOf(*listed)).second;
    report.Hold(good, Rule::SearchRecord, Shown(IdOf(record)));
    if (listed != nullptr)
      places.push_back(market.PositionOf(*listed));
  }
  return places;
}

bool Contains(std::span<const SymbolInfo> records, const SymbolInfo& wanted) {
  return std::any_of(records.begin(), records.end(),
                     [&](const SymbolInfo& each) { return IdOf(each) == IdOf(wanted); });
}

void CheckMatches(Report& report, std::span<const SymbolInfo> records, const std::string& text) {
  for (const SymbolInfo& record : records)
    report.Hold(Matches(record, text), Rule::SearchMatch, Shown(IdOf(record)) + " is found");
}

Received<SymbolInfo> Find(Report& report, const std::string& text, int exchId) {
  report.Call("VLFindSymbol", text, 0, kNamesOfTheMoment, exchId);
  return Received<SymbolInfo>(report, [&](SymbolInfo** list, int* count) {
    return VLFindSymbol(text.c_str(), list, count, 0, kNamesOfTheMoment, exchId);
  });
}

void CheckText(Report& report, const Market& market, const SymbolInfo& symbol,
               const std::string& text) {
  const Received<SymbolInfo> answer = Find(report, text, kEveryExchange);
  CheckMatches(report, answer.Records(), text);
  report.Hold(Contains(answer.Records(), symbol), Rule::SearchFinds,
              Shown(IdOf(symbol)) + " is not found");
  const std::vector<std::size_t> places = PlacesOf(report, market, answer.Records());
  report.Hold(std::is_sorted(places.begin(), places.end()), Rule::SearchOrder,
              "the results stand in another order");
}

void CheckLimited(Report& report, const SymbolInfo& symbol, const std::string& text) {
  const Received<SymbolInfo> answer = Find(report, text, symbol.exchId);
  const auto others =
      std::count_if(answer.Records().begin(), answer.Records().end(),
                    [&](const SymbolInfo& each) { return each.exchId != symbol.exchId; });
  report.Hold(others == 0, Rule::SearchLimited, Shown(static_cast<long>(others)) + " of others");
  report.Hold(Contains(answer.Records(), symbol), Rule::SearchLimited,
              Shown(IdOf(symbol)) + " is not found");
}

// Over this exchange and another in front of it.
void CheckExchangesInTurn(Report& report, const Market& market, const SymbolInfo& symbol,
                          const std::string& text) {
  const int other = market.exchanges.back().info.id;
  const std::string exchanges = std::to_string(other) + "," + std::to_string(symbol.exchId);
  report.Call("VLFindSymbol2", text, exchanges, 0, kNamesOfTheMoment);
  const Received<SymbolInfo> answer(report, [&](SymbolInfo** list, int* count) {
    return VLFindSymbol2(text.c_str(), exchanges.c_str(), list, count, 0, kNamesOfTheMoment);
  });
  CheckMatches(report, answer.Records(), text);
  bool inOrder = Contains(answer.Records(), symbol);
  bool reached = false; // the exchange that comes second
  for (const SymbolInfo& record : answer.Records()) {
    reached = reached || record.exchId != other;
    inOrder = inOrder && record.exchId == (reached ? symbol.exchId : other);
  }
  report.Hold(inOrder, Rule::SearchExchanges,
              "results of other exchanges, in another order, or without " + Shown(IdOf(symbol)));
}

void CheckOwnCode(Report& report, const SymbolInfo& symbol) {
  const std::string code(FieldText(symbol.code));
  report.Call("VLEX2ZUID2", code);
  const Received<SymbolInfo> answer(
      report, [&](SymbolInfo** list, int* count) { return VLEX2ZUID2(code.c_str(), list, count); });
  for (const SymbolInfo& record : answer.Records())
    report.Hold(Upper(FieldText(record.code)) == Upper(code), Rule::OwnCode,
                Shown(IdOf(record)) + " is found");
  report.Hold(Contains(answer.Records(), symbol), Rule::OwnCode,
              Shown(IdOf(symbol)) + " is not found");
}

void CheckSymbol(Report& report, const Market& market, const SymbolInfo& symbol) {
  const std::string code = CodeOf(symbol);
  CheckText(report, market, symbol, code);
  CheckText(report, market, symbol, IdOf(symbol));
  for (const std::string_view text : {FieldText(symbol.code), FieldText(symbol.name)})
    if (!text.empty())
      CheckText(report, market, symbol, std::string(text));
  CheckLimited(report, symbol, code);
  if (symbol.exchId != market.exchanges.back().info.id)
    CheckExchangesInTurn(report, market, symbol, code);
  if (symbol.code[0] != '\0')
    CheckOwnCode(report, symbol);
}

void CheckNothing(Report& report) {
  const Received<SymbolInfo> answer = Find(report, "", kEveryExchange);
  report.Hold(answer.Succeeded() && answer.Records().empty(), Rule::SearchEmpty,
              answer.Succeeded() ? "something is found" : "the call fails");
  report.Call("VLFindSymbol", "null");
  MustFail<SymbolInfo>(report, Rule::NullArgument, [](SymbolInfo** list, int* count) {
    return VLFindSymbol(nullptr, list, count, 0, kNamesOfTheMoment, kEveryExchange);
  });
  report.Call("VLFindSymbol2", "A", "null");
  MustFail<SymbolInfo>(report, Rule::NullArgument, [](SymbolInfo** list, int* count) {
    return VLFindSymbol2("A", nullptr, list, count, 0, kNamesOfTheMoment);
  });
  report.Call("VLEX2ZUID2", "null");
  MustFail<SymbolInfo>(report, Rule::NullArgument, [](SymbolInfo** list, int* count) {
    return VLEX2ZUID2(nullptr, list, count);
  });
}

void CheckExtended(Report& report, const char* id, int kind) {
  report.Call("VLGetExtendAttr", id, kind);
  const auto ask = [=](ExtAttr** list, int* count) {
    return VLGetExtendAttr(id, kind, list, count);
  };
  const Received<ExtAttr> answer = AskTwice<ExtAttr>(report, ask);
  report.Hold(answer.Succeeded(), Rule::ExtendedRead, "the call fails");
  for (const ExtAttr& record : answer.Records()) {
    CheckField(report, "ExtAttr::text", record.text);
    report.Hold(record.kind == kind, Rule::ExtendedKind, "a record says " + Shown(record.kind));
  }
}

void CheckContract(Report& report, const SymbolInfo& symbol) {
  char id[VLServiceIdSize] = {};
  const std::string code = CodeOf(symbol);
  report.Call("VLGetZUID", kEveryExchange, code);
  const bool known = VLGetZUID(kEveryExchange, code.c_str(), id) != 0;
  CheckField(report, "zuid", id);
  if (!report.Hold(known && id[0] != '\0', Rule::ContractId,
                   known ? "it is empty" : "the call fails"))
    return;
  const std::string text(FieldText(id));
  CheckExtended(report, text.c_str(), ExtAttrWeekly);
  CheckExtended(report, text.c_str(), ExtAttrShortName);
}

void CheckUnknownContract(Report& report) {
  char id[VLServiceIdSize] = {};
  report.Call("VLGetZUID", kEveryExchange, kUnknownCode);
  const bool known = VLGetZUID(kEveryExchange, kUnknownCode, id) != 0;
  report.Hold(!known && FieldText(id).empty(), Rule::ContractUnknown,
              known ? "the call succeeds" : "zuid was written");
  report.Call("VLGetZUID", kEveryExchange, "null");
  report.Hold(VLGetZUID(kEveryExchange, nullptr, id) == 0, Rule::NullArgument, "the call succeeds");
  report.Call("VLGetExtendAttr", kUnknownCode, int{ExtAttrWeekly});
  MustFail<ExtAttr>(report, Rule::ExtendedUnknown, [](ExtAttr** list, int* count) {
    return VLGetExtendAttr(kUnknownCode, ExtAttrWeekly, list, count);
  });
}

} // namespace

void CheckSearch(Report& report, const Market& market) {
  for (const ListedExchange& exchange : market.exchanges)
    ForSample(exchange.count, report.Asked().quick ? 1 : kSearches, [&](std::size_t i) {
      CheckSymbol(report, market, market.symbols[exchange.first + i]);
    });
  CheckNothing(report);
}

void CheckContracts(Report& report, const Market& market) {
  const std::size_t most = report.Asked().quick ? kQuickContracts : market.contracts.size();
  ForSample(market.contracts.size(), most,
            [&](std::size_t i) { CheckContract(report, market.symbols[market.contracts[i]]); });
  CheckUnknownContract(report);
}

} // namespace conformance
