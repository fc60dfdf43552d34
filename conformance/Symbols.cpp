// VLProxy: records and attributes of named symbols.
#include <algorithm>
#include <iterator>

#include "Checks.h"
#include "Received.h"
#include "tqStock.h"

namespace conformance {
namespace {

constexpr std::size_t kIdsOfACall = 200;
constexpr std::size_t kQuickSymbols = 20;

using Ids = std::vector<std::string>;

std::string Joined(const Ids& ids) {
  std::string text;
  for (const std::string& id : ids)
    text += (text.empty() ? "" : ",") + id;
  return text;
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text;
}

Ids IdsOf(std::span<const SymbolInfo> records) {
  Ids ids;
  std::transform(records.begin(), records.end(), std::back_inserter(ids), IdOf);
  return ids;
}

Received<SymbolInfo> AskInfos(Report& report, const std::string& ids) {
  report.Call("VLGetSymbolInfos", ids);
  return Received<SymbolInfo>(report, [&](SymbolInfo** list, int* count) {
    return VLGetSymbolInfos(ids.c_str(), list, count);
  });
}

// Asks for `ids` and holds the answer to `expected`.
void CheckInfos(Report& report, const Ids& ids, const Ids& expected, Rule rule) {
  const Received<SymbolInfo> answer = AskInfos(report, Joined(ids));
  const Ids got = IdsOf(answer.Records());
  report.Hold(answer.Succeeded() && got == expected, rule,
              answer.Succeeded() ? "the answer is " + Shown(Joined(got)) : "the call fails");
}

void CheckAllInOrder(Report& report, const Market& market) {
  for (std::size_t first = 0; first < market.symbols.size(); first += kIdsOfACall) {
    const std::size_t count = std::min(kIdsOfACall, market.symbols.size() - first);
    const std::span<const SymbolInfo> listed(&market.symbols[first], count);
    const Received<SymbolInfo> answer = AskInfos(report, Joined(IdsOf(listed)));
    const std::span<const SymbolInfo> got = answer.Records();
    if (!report.Hold(got.size() == count && IdsOf(got) == IdsOf(listed), Rule::SymbolOrder,
                     Shown(static_cast<long>(got.size())) + " records, or in another order"))
      continue;
    for (std::size_t i = 0; i < count; ++i)
      report.Hold(IsSame(got[i], listed[i]), Rule::SymbolRecord,
                  "the record of " + Shown(IdOf(listed[i])) + " is another");
  }
}

void CheckOne(Report& report, const std::string& id, const SymbolInfo& listed, Rule rule) {
  SymbolInfo info = {};
  report.Call("VLGetSymbolInfo", id);
  const bool known = VLGetSymbolInfo(id.c_str(), &info) != 0;
  report.Hold(known && IsSame(info, listed), rule, known ? "another record" : "the call fails");
}

void CheckUnknown(Report& report) {
  SymbolInfo info;
  std::memset(&info, 0x5a, sizeof info);
  const SymbolInfo before = info;
  report.Call("VLGetSymbolInfo", kUnknownId);
  report.Hold(VLGetSymbolInfo(kUnknownId, &info) == 0, Rule::OutputLeftAlone, "the call succeeds");
  report.Hold(std::memcmp(&info, &before, sizeof info) == 0, Rule::OutputLeftAlone,
              "*info was written");
  report.Call("VLGetSymbolInfo", "null");
  report.Hold(VLGetSymbolInfo(nullptr, &info) == 0, Rule::NullArgument, "the call succeeds");
  report.Call("VLGetSymbolInfo", kUnknownId, "no info");
  report.Hold(VLGetSymbolInfo(kUnknownId, nullptr) == 0, Rule::NullArgument, "the call succeeds");
  report.Call("VLGetSymbolInfos", "null");
  MustFail<SymbolInfo>(report, Rule::NullArgument, [](SymbolInfo** list, int* count) {
    return VLGetSymbolInfos(nullptr, list, count);
  });
}

// How unknown and repeated ids are answered, with one symbol of each exchange.
void CheckQuestions(Report& report, const SymbolInfo& symbol) {
  const std::string id = IdOf(symbol);
  CheckInfos(report, {kUnknownId, id}, {id}, Rule::SymbolUnknown);
  CheckInfos(report, {id, id}, {id, id}, Rule::SymbolTwice);
  CheckInfos(report, {Lower(id)}, {id}, Rule::SymbolLetterCase);
  CheckOne(report, Lower(id), symbol, Rule::SymbolLetterCase);
}

Ids CodesOf(std::span<const BaseAttr> records) {
  Ids codes;
  for (const BaseAttr& record : records)
    codes.emplace_back(FieldText(record.code));
  return codes;
}

void CheckAttrs(Report& report, const Ids& ids, const Ids& expected, Rule rule) {
  const std::string joined = Joined(ids);
  report.Call("VLGetBaseAttrs", joined, 1);
  const Received<BaseAttr> answer(report, [&](BaseAttr** list, int* count) {
    return VLGetBaseAttrs(joined.c_str(), list, count, 1);
  });
  const Ids codes = CodesOf(answer.Records());
  report.Hold(answer.Succeeded() && codes == expected, rule,
              answer.Succeeded() ? "the codes are " + Shown(Joined(codes)) : "the call fails");
}

// A bare code, by the full id of the record that answers it.
void CheckBareCode(Report& report, const Market& market, const std::string& code) {
  std::string expected;
  for (const ListedExchange& exchange : market.exchanges)
    if (expected.empty() && market.Find(code + "." + exchange.Name()) != nullptr)
      expected = code + "." + exchange.Name();
  report.Call("VLGetBaseAttrs", code, 1);
  const Received<BaseAttr> answer(report, [&](BaseAttr** list, int* count) {
    return VLGetBaseAttrs(code.c_str(), list, count, 1);
  });
  CStaticKey key;
  CString id;
  if (answer.Records().size() == 1 && answer.Records()[0].usable == 0)
    return; // which cannot tell its id
  const bool known =
      answer.Records().size() == 1 && key.Setup(&answer.Records()[0]) != 0 && key.GetID(id, 1) != 0;
  report.Hold(known && expected == id.GetString(), Rule::AttributesCode,
              known ? Shown(id.GetString()) + " and not " + Shown(expected) : "no single record");
}

void CheckAttributeQuestions(Report& report, const Market& market, const ListedExchange& of) {
  const SymbolInfo& first = market.symbols[of.first];
  const SymbolInfo& last = market.symbols[of.first + of.count - 1];
  const std::string code = CodeOf(first);
  CheckAttrs(report, {IdOf(last), IdOf(first)}, {CodeOf(last), code}, Rule::AttributesOrder);
  CheckAttrs(report, {IdOf(first), kUnknownId, IdOf(first)}, {code, code}, Rule::AttributesUnknown);
  CheckBareCode(report, market, code);
}

} // namespace

void CheckSymbols(Report& report, const Market& market) {
  if (!report.Asked().quick)
    CheckAllInOrder(report, market);
  const std::size_t most = report.Asked().quick ? kQuickSymbols : market.symbols.size();
  ForSample(market.symbols.size(), most, [&](std::size_t i) {
    CheckOne(report, IdOf(market.symbols[i]), market.symbols[i], Rule::SymbolRecord);
  });
  for (const ListedExchange& exchange : market.exchanges) {
    if (exchange.count == 0)
      continue;
    CheckQuestions(report, market.symbols[exchange.first]);
    CheckAttributeQuestions(report, market, exchange);
  }
  CheckInfos(report, {}, {}, Rule::SymbolsNone);
  CheckUnknown(report);
}

} // namespace conformance
