// The attributes that an item does not hold because they change during trading: the service is asked
// each time.
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/Text.h"
#include "platform/services/tqStock.h"
#include "symboltable/SymbolItem.h"

namespace {

constexpr char kNoPrice[] = "--"; // shown to the user when there is no price

// The number truncated to an int; the nearest int when it is out of range, 0 for NaN.
int CutToInt(double number) {
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  if (std::isnan(number))
    return 0;
  if (number <= lowest)
    return std::numeric_limits<int>::min();
  return number >= highest ? std::numeric_limits<int>::max() : static_cast<int>(number);
}

// The number at the start of a text, 0 when there is none. The decimal point is "." in every locale.
double LeadingNumber(const CString& text) {
  std::string_view number = tq::TrimmedFront(tq::ViewOf(text));
  if (number.starts_with('+'))
    number.remove_prefix(1);
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return value;
}

// A price as a whole number of its smallest steps: "12.5" with two decimals is 1250. Adding a
// thousandth keeps a product such as 1.15 * 100, which is slightly below 115 in binary, from being
// truncated to 114.
int ScaledPrice(const CString& text, int decimals) {
  return CutToInt(LeadingNumber(text) * std::pow(10.0, decimals) + 0.001);
}

} // namespace

int CSymbolItem::AskService(int field, CString& value) const {
  return tqStockGetFieldString(field, exchId_, tq::ToCString(Symbol()), value);
}

int CSymbolItem::AskTradeCode(CString& value) const {
  CStaticKey key;
  if (key.SetUpTrade(exchId_, tq::ToCString(Symbol())) && key.GetFieldString(FieldTradeCode, value))
    return 1;
  value.Empty();
  return 0;
}

int CSymbolItem::AskNumber(int field, int& value) const {
  value = field == FieldContractSize ? 1 : kAbsent;
  const int decimals = decimals_; // copied: the terminal may remove the symbol during the question
  CString text;
  switch (field) {
  case FieldTradingStatus:
  case FieldOddLot:
    if (!AskService(field, text))
      return 0;
    value = tq::LeadingInt(tq::ViewOf(text));
    return 1;
  case FieldReferencePrice:
  case FieldPreviousClose:
    if (!AskService(field, text))
      return 0;
    value = ScaledPrice(text, decimals);
    return 1;
  case FieldContractSize:
    if (!AskService(field, text))
      return 0;
    if (const int size = tq::LeadingInt(tq::ViewOf(text)); size > 0)
      value = size;
    return 1;
  default:
    return 0;
  }
}

int CSymbolItem::AskText(int field, CString& value) const {
  switch (field) {
  case FieldTradeCode:
    return AskTradeCode(value);
  case FieldReferencePrice:
  case FieldPreviousClose:
  case FieldOpeningReference:
    if (AskService(field, value))
      return 1;
    value = kNoPrice;
    return 0;
  case FieldExchangeTitle:
  case FieldTradingSession:
  case FieldTradingNote:
  case FieldSettlementMonth:
  case FieldMarginNote:
    return AskService(field, value);
  default:
    value.Empty();
    return 0;
  }
}
