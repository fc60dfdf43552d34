#include "terminal/control/RecordBuilder.h"

#include <cstdlib>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/services/tqStockFields.h"
#include "terminal/control/Reports.h"

namespace standin {
namespace {

struct Kind {
  std::string_view name;
  InstrumentKind number;
  char mark;
};

constexpr char kNoMark = ' ';
constexpr Kind kKinds[] = {
    {"stock", InstrumentStock, 'S'},   {"index", InstrumentIndex, 'I'},
    {"etf", InstrumentEtf, 'E'},       {"warrant", InstrumentWarrant, 'W'},
    {"future", InstrumentFuture, 'F'}, {"option", InstrumentOption, 'O'},
    {"bond", InstrumentBond, 'B'},     {"preferred", InstrumentPreferred, 'P'},
    {"etn", InstrumentEtn, 'N'},
};

void SetKind(const std::string& kind, BaseAttrHead& head) {
  head.mark = kNoMark;
  for (const Kind& known : kKinds) {
    if (known.name != kind)
      continue;
    head.kind = static_cast<short>(known.number);
    head.mark = known.mark;
  }
}

// What the market knows about an instrument beyond the members that every instrument has.
void SetField(const FieldValue& given, BaseAttrHead& head) {
  const std::string text = ToAnsi(given.value);
  const int number = std::atoi(text.c_str());
  switch (given.field) {
  case FieldMark:
    head.mark = text.empty() ? kNoMark : text[0];
    break;
  case FieldKind:
    head.kind = static_cast<short>(number);
    break;
  case FieldBoard:
    head.board = static_cast<short>(number);
    break;
  case FieldLegExchange:
    tq::CopyCut(head.legExchName, text.c_str());
    break;
  case FieldIndustry:
    tq::CopyCut(head.industry, text.c_str());
    break;
  case FieldUnderlying:
    tq::CopyCut(head.underlying, text.c_str());
    break;
  case FieldContractMonth:
    tq::CopyCut(head.contractMonth, text.c_str());
    break;
  case FieldCurrency:
    tq::CopyCut(head.currency, text.c_str());
    break;
  case FieldExpiryDate:
    head.expiryDate = number;
    break;
  default: // trading data: tqStock asks the market
    break;
  }
}

const std::string& ExchangeCode(const Instrument& instrument) {
  return instrument.exchangeCode.empty() ? instrument.code : instrument.exchangeCode;
}

} // namespace

void BuildInfo(const Instrument& instrument, const ExchInfo& exchange, SymbolInfo& info) {
  info.exchId = exchange.id;
  std::string id;
  id.reserve(instrument.code.size() + sizeof exchange.name + 1);
  id.append(instrument.code).append(".").append(exchange.name);
  tq::CopyCut(info.id, id.c_str());
  tq::CopyCut(info.code, ExchangeCode(instrument).c_str());
}

void BuildHead(const Instrument& instrument, const ExchInfo& exchange, BaseAttrHead& head) {
  head.exchId = exchange.id;
  tq::CopyCut(head.code, instrument.code.c_str());
  tq::CopyCut(head.exchName, exchange.name);
  SetKind(instrument.kind, head);
  head.decimals = static_cast<short>(instrument.decimals);
  head.lot = instrument.lot;
  head.legExchId = exchange.id;
  head.usable = instrument.usable ? 1 : 0;
  tq::CopyCut(head.exchangeCode, ExchangeCode(instrument).c_str());
  tq::CopyCut(head.legExchName, exchange.name);
  for (const FieldValue& field : instrument.fields)
    SetField(field, head);
}

} // namespace standin
