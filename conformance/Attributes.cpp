// tqStock: what a symbol's record says, and that it is the record of the symbol that VLProxy lists.
#include <algorithm>
#include <cstdlib>

#include "Checks.h"
#include "Received.h"
#include "tqStock.h"

namespace conformance {
namespace {

constexpr int kUnknownField = 9999;
constexpr int kUntouched = -12345678;
constexpr std::size_t kQuickRecords = 50;
// Those that come as text in decimal.
constexpr int kPlainNumbers[] = {FieldKind,     FieldBoard,    FieldExpiryDate,
                                 FieldTradeLot, FieldDecimals, FieldPriceScale};

std::string_view ViewOf(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

// One key object and the reads of its fields, each noted as a call.
class Key {
public:
  explicit Key(Report& report, std::string of) : report_(report), of_(std::move(of)) {}

  bool Setup(const BaseAttr* record) {
    report_.Call("CStaticKey::Setup", of_);
    return key_.Setup(record) != 0;
  }
  // Null-terminated text in any case; false, and a finding where it is not empty, for a failure.
  bool Text(int field, CString& value) {
    value = "before";
    report_.Call("CStaticKey::GetFieldString", of_, field);
    return Read(key_.GetFieldString(field, value), value);
  }
  bool Id(int full, CString& value) {
    value = "before";
    report_.Call("CStockAttr::GetID", of_, full);
    return Read(key_.GetID(value, full), value);
  }
  bool Number(int field, int& value) {
    value = kUntouched;
    report_.Call("CStaticKey::GetFieldInt", of_, field);
    const bool read = key_.GetFieldInt(field, value) != 0;
    if (!read)
      report_.Hold(value == kUntouched, Rule::FailedNumber, "the number became " + Shown(value));
    return read;
  }

private:
  bool Read(int result, const CString& value) {
    if (result == 0)
      report_.Hold(value.IsEmpty(), Rule::FailedText, "the text became " + Shown(ViewOf(value)));
    else
      CheckCodePage(report_, "the text", ViewOf(value));
    return result != 0;
  }

  Report& report_;
  std::string of_;
  CStaticKey key_;
};

void CheckId(Report& report, Key& key, const SymbolInfo& symbol) {
  CString text;
  key.Id(1, text);
  report.Hold(ViewOf(text) == IdOf(symbol), Rule::KeyId, "the full id is " + Shown(ViewOf(text)));
  key.Id(0, text);
  report.Hold(ViewOf(text) == CodeOf(symbol), Rule::KeyId, "the code is " + Shown(ViewOf(text)));
}

void CheckTexts(Report& report, Key& key, const SymbolInfo& symbol) {
  CString text;
  const std::string_view name = FieldText(symbol.name);
  const bool named = key.Text(FieldSymbolName, text);
  const bool cut = name.size() + 2 >= sizeof symbol.name; // a whole character less may be there
  report.Hold(named && (cut ? ViewOf(text).starts_with(name) : ViewOf(text) == name),
              Rule::FieldName, Shown(ViewOf(text)) + " and not " + Shown(name));
  const bool marked = key.Text(FieldMark, text);
  report.Hold(!marked || text.GetLength() == 1, Rule::FieldMarkText, Shown(ViewOf(text)));
  const bool monthly = key.Text(FieldContractMonth, text) && !text.IsEmpty();
  report.Hold(!monthly || (text.GetLength() == 6 && IsDecimal(ViewOf(text))), Rule::FieldMonth,
              Shown(ViewOf(text)));
  for (const int field : {FieldLegExchange, FieldIndustry, FieldUnderlying, FieldCurrency})
    key.Text(field, text);
}

void CheckExchangeFields(Report& report, Key& key, const ListedExchange& exchange) {
  CString text;
  int number = 0;
  const bool named = key.Text(FieldExchangeName, text);
  report.Hold(named && ViewOf(text) == exchange.Name(), Rule::FieldExchange, Shown(ViewOf(text)));
  const bool numbered = key.Number(FieldExchangeName, number);
  report.Hold(numbered && number == exchange.info.id, Rule::FieldExchange, Shown(number));
  key.Number(FieldLegExchange, number);
}

bool IsDate(int date) {
  const int month = date / 100 % 100;
  const int day = date % 100;
  return date >= 10000101 && date <= 99991231 && month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

int Scale(int decimals) {
  int scale = 1;
  for (int i = 0; i < std::min(decimals, 9); ++i)
    scale *= 10;
  return scale;
}

// Whatever is not there may be left out; what is there has its range.
void CheckNumbers(Report& report, Key& key) {
  int value = 0;
  bool read = key.Number(FieldKind, value);
  report.Hold(!read || (value >= InstrumentOther && value <= InstrumentEtn), Rule::FieldKindOf,
              Shown(value));
  read = key.Number(FieldTradeLot, value);
  report.Hold(!read || value > 0, Rule::FieldLot, Shown(value));
  read = key.Number(FieldExpiryDate, value);
  report.Hold(!read || value == 0 || IsDate(value), Rule::FieldExpiry, Shown(value));
  int decimals = 0;
  const bool hasDecimals = key.Number(FieldDecimals, decimals);
  read = key.Number(FieldPriceScale, value);
  report.Hold(!read || !hasDecimals || value == Scale(decimals), Rule::FieldScale,
              Shown(value) + " with " + Shown(decimals) + " decimal places");
}

void CheckNumberTexts(Report& report, Key& key) {
  CString text;
  int number = 0;
  for (const int field : kPlainNumbers) {
    if (!key.Number(field, number) || !key.Text(field, text))
      continue;
    report.Hold(ViewOf(text) == std::to_string(number), Rule::FieldNumberText,
                Shown(ViewOf(text)) + " for the number " + Shown(number));
  }
}

void CheckUnknownFields(Report& report, Key& key) {
  CString text;
  int number = 0;
  report.Hold(!key.Text(kUnknownField, text), Rule::FieldUnknown, "the call succeeds");
  for (const int field : {int{FieldSymbolName}, int{FieldCurrency}, kUnknownField})
    report.Hold(!key.Number(field, number), Rule::FieldNumbers, "the call succeeds");
}

void NoteContract(Market& market, Key& key, const SymbolInfo& symbol) {
  int kind = InstrumentOther;
  if (key.Number(FieldKind, kind) && (kind == InstrumentFuture || kind == InstrumentOption))
    market.contracts.push_back(market.PositionOf(symbol));
}

void CheckUnbound(Report& report, Key& key) {
  CString text;
  int number = 0;
  report.Hold(!key.Id(1, text), Rule::KeyUnbound, "the call succeeds");
  report.Hold(!key.Text(FieldSymbolName, text), Rule::KeyUnbound, "the call succeeds");
  report.Hold(!key.Number(FieldKind, number), Rule::KeyUnbound, "the call succeeds");
}

void CheckRecord(Report& report, Market& market, const ListedExchange& exchange,
                 const SymbolInfo& symbol, const BaseAttr& record) {
  Key key(report, IdOf(symbol));
  const BaseAttr before = record;
  const bool usable = record.usable != 0 && record.code[0] != '\0';
  const bool bound = key.Setup(&record);
  report.Hold(bound == usable, Rule::KeySetup, bound ? "the call succeeds" : "the call fails");
  if (bound && usable) {
    CheckId(report, key, symbol);
    CheckTexts(report, key, symbol);
    CheckExchangeFields(report, key, exchange);
    CheckNumbers(report, key);
    CheckNumberTexts(report, key);
    CheckUnknownFields(report, key);
    NoteContract(market, key, symbol);
  }
  report.Call("CStaticKey::Setup", IdOf(symbol));
  report.Hold(std::memcmp(&before, &record, sizeof record) == 0, Rule::KeyRecord,
              "the record was changed");
}

// A record that is refused leaves nothing of the one before.
void CheckRefused(Report& report, const SymbolInfo& symbol, const BaseAttr& record) {
  BaseAttr unusable = record;
  unusable.usable = 0;
  BaseAttr nameless = record;
  std::memset(nameless.code, 0, sizeof nameless.code);
  for (const BaseAttr* refused :
       {static_cast<const BaseAttr*>(nullptr), static_cast<const BaseAttr*>(&unusable),
        static_cast<const BaseAttr*>(&nameless)}) {
    Key key(report, refused == nullptr ? "null" : IdOf(symbol) + " without code or use");
    key.Setup(&record);
    report.Hold(!key.Setup(refused), Rule::KeySetup, "the call succeeds");
    CheckUnbound(report, key);
  }
  Key fresh(report, "no record");
  CheckUnbound(report, fresh);
}

void CheckRecordsOf(Report& report, Market& market, const ListedExchange& exchange) {
  const int exchId = exchange.info.id;
  report.Call("VLGetBaseAttrs2", exchId, kWholeExchange, 0, 1);
  const auto ask = [=](BaseAttr** list, int* count) {
    return VLGetBaseAttrs2(exchId, kWholeExchange, list, count, 0, 1);
  };
  const Received<BaseAttr> answer = AskTwice<BaseAttr>(report, ask);
  const std::span<const BaseAttr> records = answer.Records();
  report.Hold(answer.Succeeded(), Rule::ExchangeRead, "the call fails");
  if (!report.Hold(records.size() == exchange.count, Rule::AttributesListed,
                   Shown(static_cast<long>(records.size())) + " records for " +
                       Shown(static_cast<long>(exchange.count)) + " symbols"))
    return;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::string code = CodeOf(market.symbols[exchange.first + i]);
    CheckField(report, "BaseAttr::code", records[i].code);
    if (!report.Hold(FieldText(records[i].code) == code, Rule::AttributesListed,
                     Shown(FieldText(records[i].code)) + " in the place of " + Shown(code)))
      return;
  }
  const std::size_t most = report.Asked().quick ? kQuickRecords : records.size();
  ForSample(records.size(), most, [&](std::size_t i) {
    CheckRecord(report, market, exchange, market.symbols[exchange.first + i], records[i]);
  });
  if (!records.empty())
    CheckRefused(report, market.symbols[exchange.first], records[0]);
}

} // namespace

void CheckAttributes(Report& report, Market& market) {
  for (const ListedExchange& exchange : market.exchanges)
    CheckRecordsOf(report, market, exchange);
}

} // namespace conformance
