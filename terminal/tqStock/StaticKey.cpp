// tqStock: the attributes in a symbol's record.
#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

#include "platform/CodePage.h"
#include "platform/services/tqStock.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Script.h"
#include "terminal/tqStock/KeyState.h"
#include "terminal/tqStock/TradeFields.h"

using namespace standin;

namespace {

KeyState& StateOf(unsigned char* bytes) {
  return *std::launder(reinterpret_cast<KeyState*>(bytes));
}
const KeyState& StateOf(const unsigned char* bytes) {
  return *std::launder(reinterpret_cast<const KeyState*>(bytes));
}

// Ten to the power of `decimals`, limited to what an int holds.
int PriceScale(int decimals) {
  constexpr int kMostDecimals = std::numeric_limits<int>::digits10;
  int scale = 1;
  for (int i = 0; i < std::min(decimals, kMostDecimals); ++i)
    scale *= 10;
  return scale;
}

bool NumberField(const BaseAttrHead& head, int field, int& value) {
  switch (field) {
  case FieldKind:
    value = head.kind;
    return true;
  case FieldBoard:
    value = head.board;
    return true;
  case FieldExchangeName:
    value = head.exchId;
    return true;
  case FieldLegExchange:
    value = head.legExchId;
    return true;
  case FieldExpiryDate:
    value = head.expiryDate;
    return true;
  case FieldTradeLot:
    value = head.lot;
    return true;
  case FieldDecimals:
    value = head.decimals;
    return true;
  case FieldPriceScale:
    value = PriceScale(head.decimals);
    return true;
  default:
    return false;
  }
}

// The text member of a field in the record; null for other fields.
const char* TextField(const BaseAttrHead& head, int field) {
  switch (field) {
  case FieldSymbolName:
    return head.name;
  case FieldExchangeName:
    return head.exchName;
  case FieldLegExchange:
    return head.legExchName;
  case FieldIndustry:
    return head.industry;
  case FieldUnderlying:
    return head.underlying;
  case FieldContractMonth:
    return head.contractMonth;
  case FieldCurrency:
    return head.currency;
  case FieldExchangeCode:
    return head.exchangeCode;
  default:
    return nullptr;
  }
}

void FullId(const BaseAttrHead& head, CString& id) {
  // Room for a code and an exchange name with a NUL each, which is enough for the full id with "."
  // and NUL.
  char text[sizeof head.code + sizeof head.exchName];
  const std::size_t length = std::strlen(head.code);
  std::memcpy(text, head.code, length);
  text[length] = '.';
  std::strcpy(text + length + 1, head.exchName);
  id = text;
}

bool RecordText(const BaseAttrHead& head, int field, CString& value) {
  if (field == FieldSymbolId) {
    FullId(head, value);
    return true;
  }
  if (field == FieldMark) {
    const char mark[] = {head.mark, '\0'};
    value = mark;
    return true;
  }
  if (const char* text = TextField(head, field)) {
    value = text;
    return true;
  }
  int number = 0;
  if (!NumberField(head, field, number))
    return false;
  value = std::to_string(number).c_str();
  return true;
}

} // namespace

CStockAttr::CStockAttr() {
  static_assert(sizeof(KeyState) <= sizeof state_);
  new (state_) KeyState;
}

int CStockAttr::GetID(CString& id, int full) const {
  const KeyState& state = StateOf(state_);
  if (!BeginQuietly("CStockAttr::GetID") || !state.record) {
    id = "";
    return 0;
  }
  if (full)
    FullId(Head(*state.record), id);
  else
    id = Head(*state.record).code;
  return 1;
}

CStaticKey::CStaticKey() = default;
CStaticKey::~CStaticKey() = default;

int CStaticKey::Setup(const BaseAttr* record) {
  KeyState& state = StateOf(state_);
  state = KeyState();
  const bool proceed = Begin("CStaticKey::Setup", record ? record->code : nullptr);
  if (!proceed || !record || record->code[0] == '\0' || record->usable == 0)
    return 0;
  state.record = record;
  return 1;
}

int CStaticKey::SetUpTrade(int exchId, const char* code) {
  KeyState& state = StateOf(state_);
  state = KeyState();
  const bool proceed = Begin("CStaticKey::SetUpTrade", exchId, code);
  if (!proceed || !code || CurrentListings().FindCode(exchId, code) == Listings::kNotFound)
    return 0;
  state.tradeExchId = exchId;
  tq::CopyCut(state.tradeCode, code);
  return 1;
}

int CStaticKey::GetFieldString(int field, CString& value) const {
  const KeyState& state = StateOf(state_);
  bool read = false;
  if (!BeginQuietly("CStaticKey::GetFieldString"))
    read = false;
  else if (field == FieldTradeCode && state.tradeCode[0] != '\0')
    read = ReadTradeField(field, state.tradeExchId, state.tradeCode, value);
  else
    read = state.record && RecordText(Head(*state.record), field, value);
  if (!read)
    value = "";
  return read ? 1 : 0;
}

int CStaticKey::GetFieldInt(int field, int& value) const {
  const KeyState& state = StateOf(state_);
  if (!BeginQuietly("CStaticKey::GetFieldInt") || !state.record)
    return 0;
  return NumberField(Head(*state.record), field, value) ? 1 : 0;
}
