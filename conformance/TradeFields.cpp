// tqStock: what trading data tells of a symbol, the texts of extended attributes, the info tables.
#include <set>
#include <vector>

#include "CPtrArray.h"
#include "CStringArray.h"
#include "Checks.h"
#include "tqStock.h"

namespace conformance {
namespace {

constexpr std::size_t kQuickTrades = 20;
constexpr int kTradeTexts[] = {FieldReferencePrice, FieldPreviousClose,   FieldOpeningReference,
                               FieldTradingStatus,  FieldOddLot,          FieldContractSize,
                               FieldExchangeTitle,  FieldTradingSession,  FieldTradingNote,
                               FieldMarginNote,     FieldSettlementMonth, FieldTradeCode};
constexpr int kUnknownTable = 9999;

std::string_view View(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

bool IsPrice(int field) {
  return field == FieldReferencePrice || field == FieldPreviousClose ||
         field == FieldOpeningReference;
}

bool TradeText(Report& report, int field, int exchId, const char* code, CString& value) {
  value = "before";
  report.Call("tqStockGetFieldString", field, exchId, code);
  const bool told = tqStockGetFieldString(field, exchId, code, value) != 0;
  if (!told)
    report.Hold(value.IsEmpty(), Rule::FailedText, "the text became " + Shown(View(value)));
  else
    CheckCodePage(report, "the text", View(value));
  return told;
}

void CheckTradeTexts(Report& report, const SymbolInfo& symbol) {
  CString text;
  for (const int field : kTradeTexts)
    if (TradeText(report, field, symbol.exchId, CodeOf(symbol).c_str(), text) && IsPrice(field))
      report.Hold(IsDecimal(View(text), true), Rule::TradePrice, Shown(View(text)));
}

void CheckTradeKey(Report& report, const SymbolInfo& symbol) {
  const std::string code = CodeOf(symbol);
  CStaticKey key;
  report.Call("CStaticKey::SetUpTrade", int{symbol.exchId}, code);
  report.Hold(key.SetUpTrade(symbol.exchId, code.c_str()) != 0, Rule::TradeSetUp, "the call fails");
  CString text = "before";
  report.Call("CStaticKey::GetFieldString", IdOf(symbol), int{FieldTradeCode});
  if (key.GetFieldString(FieldTradeCode, text) == 0)
    report.Hold(text.IsEmpty(), Rule::FailedText, "the text became " + Shown(View(text)));
}

void CheckUnknownTrade(Report& report, int exchId) {
  CStaticKey key;
  report.Call("CStaticKey::SetUpTrade", exchId, kUnknownCode);
  report.Hold(key.SetUpTrade(exchId, kUnknownCode) == 0, Rule::TradeSetUp,
              "the call succeeds for an unknown symbol");
  report.Call("CStaticKey::SetUpTrade", exchId, "null");
  report.Hold(key.SetUpTrade(exchId, nullptr) == 0, Rule::TradeSetUp, "the call succeeds");
  CString text;
  for (const int field : {FieldReferencePrice, FieldExchangeTitle})
    report.Hold(!TradeText(report, field, exchId, kUnknownCode, text), Rule::TradeUnknown,
                "the call succeeds");
}

struct Pairs {
  const char* text;
  const char* key;
  const char* value; // null: none
};

constexpr Pairs kPairs[] = {
    {"V4=W;V5=2", "V4", "W"},       {"V4=W;V5=2", "V5", "2"},    {"V4=W;V5=2", "V3", nullptr},
    {"V4=W;V4=X", "V4", "W"},       {"V4=;V5=2", "V4", nullptr}, {"", "V4", nullptr},
    {"V4=W", "V", nullptr},         {"V44=W", "V4", nullptr},    {"V4=W=X", "V4", "W=X"},
    {"V3= 18 ;V4=W", "V3", " 18 "}, {" V3=18", "V3", nullptr},   {"V4", "V4", nullptr},
    {nullptr, "V4", nullptr},       {"V4=W", nullptr, nullptr},
};

using Columns = std::vector<std::string>;

Columns ColumnsOf(const CStringArray& row) {
  Columns columns;
  for (int i = 0; i < row.GetSize(); ++i)
    columns.emplace_back(View(row[i]));
  return columns;
}

// The rows as the caller's own; they are the library's until the next call.
bool ReadTable(Report& report, int type, std::vector<Columns>& table) {
  CPtrArray rows;
  rows.Add(nullptr);
  report.Call("CStockKey::GetInfoArray", type);
  const bool read = CStockKey::GetInfoArray(static_cast<InfoType>(type), rows) != 0;
  for (int i = 0; i < rows.GetSize(); ++i) {
    if (!report.Hold(rows[i] != nullptr, Rule::TableRows, "row " + Shown(i) + " is null"))
      return false;
    table.push_back(ColumnsOf(*static_cast<const CStringArray*>(rows[i])));
  }
  return read;
}

void CheckRow(Report& report, const Columns& row, std::size_t number,
              std::set<std::string>& codes) {
  const std::string where = "row " + Shown(static_cast<long>(number));
  for (const std::string& text : row)
    CheckCodePage(report, where.c_str(), text);
  if (!report.Hold(row.size() > InfoCode, Rule::TableColumns,
                   where + " has " + Shown(static_cast<long>(row.size())) + " columns"))
    return;
  const std::string& code = row[InfoCode];
  report.Hold(!code.empty() && IsPlain(code) && codes.insert(code).second, Rule::TableCode,
              where + " has the code " + Shown(code));
}

} // namespace

void CheckTradeFields(Report& report, const Market& market) {
  const std::size_t most = report.Asked().quick ? kQuickTrades : market.symbols.size();
  ForSample(market.symbols.size(), most, [&](std::size_t i) {
    CheckTradeTexts(report, market.symbols[i]);
    CheckTradeKey(report, market.symbols[i]);
  });
  for (const ListedExchange& exchange : market.exchanges)
    CheckUnknownTrade(report, exchange.info.id);
}

void CheckExtendedTexts(Report& report) {
  for (const Pairs& pairs : kPairs) {
    CString value = "before";
    report.Call("CStockKey::ParseExtAttr", pairs.text, pairs.key);
    const bool found = CStockKey::ParseExtAttr(pairs.text, pairs.key, value) != 0;
    const std::string seen = found ? "the value is " + Shown(View(value)) : "the call fails";
    if (pairs.value != nullptr)
      report.Hold(found && View(value) == pairs.value, Rule::ExtPair, seen);
    else
      report.Hold(!found && value.IsEmpty(), Rule::ExtFails,
                  found ? seen : "the text became " + Shown(View(value)));
  }
}

void CheckInfoTables(Report& report) {
  for (const InfoType type : {InfoEconomicIndicators, InfoCommodities, InfoInternationalFutures}) {
    std::vector<Columns> table;
    std::vector<Columns> again;
    std::set<std::string> codes;
    ReadTable(report, type, table);
    for (std::size_t i = 0; i < table.size(); ++i)
      CheckRow(report, table[i], i, codes);
    ReadTable(report, type, again);
    report.Hold(table == again, Rule::SameAnswer, "two calls in succession answer differently");
  }
  std::vector<Columns> none;
  const bool read = ReadTable(report, kUnknownTable, none);
  report.Hold(read && none.empty(), Rule::TableUnknown,
              read ? Shown(static_cast<long>(none.size())) + " rows" : "the call fails");
}

} // namespace conformance
