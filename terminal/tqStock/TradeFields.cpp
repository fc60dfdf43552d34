// tqStock: the attributes that only trading data has. The stand-in takes them from its market.
#include "terminal/tqStock/TradeFields.h"

#include <optional>

#include "platform/services/tqStock.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

const FieldValue* Given(const Instrument& instrument, int field) {
  for (const FieldValue& value : instrument.fields)
    if (value.field == field)
      return &value;
  return nullptr;
}

bool IsContract(const Instrument& instrument) {
  return instrument.kind == "future" || instrument.kind == "option";
}

std::optional<std::string> ExchangeTitle(int exchId) {
  for (const Exchange& exchange : CurrentMarket().exchanges)
    if (exchange.id == exchId)
      return InterfaceLanguage() == Language::Traditional ? exchange.titleTw : exchange.titleCn;
  return std::nullopt;
}

std::optional<std::string> IfSaid(const std::string& text) {
  return text.empty() ? std::nullopt : std::optional(text);
}

// UTF-8. The market knows one price, yesterday's; unknown fields are not answered.
std::optional<std::string> TradeField(const Instrument& instrument, int field) {
  if (const FieldValue* given = Given(instrument, field))
    return given->value;
  switch (field) {
  case FieldTradeCode:
    return instrument.exchangeCode.empty() ? instrument.code : instrument.exchangeCode;
  case FieldTradingStatus:
    return instrument.usable ? "1" : "0";
  case FieldReferencePrice:
  case FieldPreviousClose:
    return IfSaid(instrument.price);
  case FieldOddLot:
    return "1";
  case FieldContractSize:
    return IsContract(instrument) ? std::optional(std::to_string(instrument.lot)) : std::nullopt;
  case FieldExchangeTitle:
    return ExchangeTitle(instrument.exchId);
  default:
    return std::nullopt;
  }
}

} // namespace

bool standin::ReadTradeField(int field, int exchId, const char* code, CString& value) {
  const Listings& listings = CurrentListings();
  const std::size_t position = listings.FindCode(exchId, code);
  if (position == Listings::kNotFound)
    return false;
  const Instrument& instrument = CurrentMarket().instruments[listings.Source(position)];
  const std::optional<std::string> text = TradeField(instrument, field);
  if (text)
    value = ToAnsi(*text).c_str();
  return text.has_value();
}

int tqStockGetFieldString(int field, int exchId, const char* code, CString& value) {
  value = "";
  const bool proceed = Begin("tqStockGetFieldString", field, exchId, code);
  return proceed && code && ReadTradeField(field, exchId, code, value) ? 1 : 0;
}
