// VLProxy: the exchanges, and what each of them lists.
#include <set>

#include "Checks.h"
#include "Received.h"

namespace conformance {
namespace {

void CheckExchange(Report& report, const ExchInfo& record, std::set<int>& numbers,
                   std::set<std::string>& names) {
  CheckField(report, "ExchInfo::name", record.name);
  const std::string name(FieldText(record.name));
  report.Hold(record.id > 0 && numbers.insert(record.id).second, Rule::ExchangeNumber,
              "the number " + Shown(record.id) + " of " + Shown(name));
  report.Hold(names.insert(Upper(name)).second, Rule::ExchangeName, Shown(name) + " comes again");
  report.Hold(!name.empty() && IsPlain(name, " .,"), Rule::ExchangeNameText, Shown(name));
}

void ReadExchanges(Report& report, Market& market) {
  report.Call("VLGetExch", 1);
  const auto ask = [](ExchInfo** list, int* count) { return VLGetExch(list, count, 1); };
  const Received<ExchInfo> answer = AskTwice<ExchInfo>(report, ask);
  report.Hold(!answer.Records().empty(), Rule::ExchangesListed, "no exchange is listed");
  std::set<int> numbers;
  std::set<std::string> names;
  for (const ExchInfo& record : answer.Records()) {
    CheckExchange(report, record, numbers, names);
    if (market.FindExchange(record.id) == nullptr)
      market.exchanges.push_back({record});
  }
}

void CheckListed(Report& report, const ListedExchange& exchange, const SymbolInfo& symbol) {
  CheckField(report, "SymbolInfo::id", symbol.id);
  CheckField(report, "SymbolInfo::code", symbol.code);
  CheckField(report, "SymbolInfo::name", symbol.name);
  const std::string id = IdOf(symbol);
  const std::string suffix = "." + exchange.Name();
  report.Hold(symbol.exchId == exchange.info.id, Rule::SymbolExchange,
              Shown(id) + " says exchange " + Shown(symbol.exchId));
  report.Hold(id.size() > suffix.size() && id.ends_with(suffix), Rule::SymbolSuffix,
              Shown(id) + " does not end in " + Shown(suffix) + " behind a code");
  report.Hold(IsPlain(id, " ,"), Rule::SymbolIdText, Shown(id));
}

void ReadSymbols(Report& report, Market& market, ListedExchange& exchange) {
  const int exchId = exchange.info.id;
  report.Call("VLGetSymbolInfos2", exchId, kWholeExchange, 0);
  const auto ask = [=](SymbolInfo** list, int* count) {
    return VLGetSymbolInfos2(exchId, kWholeExchange, list, count, 0);
  };
  const Received<SymbolInfo> answer = AskTwice<SymbolInfo>(report, ask);
  report.Hold(answer.Succeeded(), Rule::ExchangeRead, "the call fails");
  exchange.first = market.symbols.size();
  for (const SymbolInfo& symbol : answer.Records()) {
    CheckListed(report, exchange, symbol);
    const bool once = market.byId.emplace(Upper(IdOf(symbol)), market.symbols.size()).second;
    report.Hold(once, Rule::SymbolOnce, Shown(IdOf(symbol)) + " comes again");
    market.symbols.push_back(symbol);
  }
  exchange.count = market.symbols.size() - exchange.first;
}

void CheckRefusals(Report& report, const Market& market) {
  const int unused = market.UnusedExchange();
  report.Call("VLGetSymbolInfos2", unused, kWholeExchange, 0);
  MustFail<SymbolInfo>(report, Rule::ExchangeUnknown, [=](SymbolInfo** list, int* count) {
    return VLGetSymbolInfos2(unused, kWholeExchange, list, count, 0);
  });
  report.Call("VLGetBaseAttrs2", unused, kWholeExchange, 0, 1);
  MustFail<BaseAttr>(report, Rule::ExchangeUnknown, [=](BaseAttr** list, int* count) {
    return VLGetBaseAttrs2(unused, kWholeExchange, list, count, 0, 1);
  });
  int count = 0;
  report.Call("VLGetExch", "no list", 1);
  report.Hold(VLGetExch(nullptr, &count, 1) == 0, Rule::NullArgument, "the call succeeds");
  ExchInfo* list = nullptr;
  report.Call("VLGetExch", "no count", 1);
  report.Hold(VLGetExch(&list, nullptr, 1) == 0, Rule::NullArgument, "the call succeeds");
  if (list != nullptr)
    VLFree(list);
  report.Call("VLFree", "null");
  VLFree(nullptr);
}

} // namespace

void CheckExchanges(Report& report, Market& market) {
  ReadExchanges(report, market);
  for (ListedExchange& exchange : market.exchanges)
    ReadSymbols(report, market, exchange);
  CheckRefusals(report, market);
}

} // namespace conformance
