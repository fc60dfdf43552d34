// The stock-attribute library: reads what VLProxy wrote into a record.
#include <tqStock.h>

#include <CPtrArray.h>

#include <cstring>

#include "Market.h"

namespace {

// The state of a key object: the symbol that it stands for, null for none.
const Listed* SymbolOf(const unsigned char* state) {
  const Listed* symbol = nullptr;
  std::memcpy(&symbol, state, sizeof symbol);
  return symbol;
}

int Bind(unsigned char* state, const Listed* symbol) {
  std::memcpy(state, &symbol, sizeof symbol);
  return symbol != nullptr;
}

} // namespace

CStockAttr::CStockAttr() : state_() {}

int CStockAttr::GetID(CString& id, int full) const {
  const Listed* const symbol = SymbolOf(state_);
  id = symbol == nullptr ? "" : full != 0 ? symbol->id : symbol->code;
  return symbol != nullptr;
}

CStaticKey::CStaticKey() {}
CStaticKey::~CStaticKey() {}

int CStaticKey::Setup(const BaseAttr* record) {
  const bool usable = record != nullptr && record->usable != 0 && record->code[0] != '\0';
  return Bind(state_, usable ? &ListedOf(*record) : nullptr);
}

int CStaticKey::SetUpTrade(int exchId, const char* code) {
  const Listed* found = nullptr;
  for (const Listed& symbol : kMarket)
    if (exchId == kExchange && CString(code).CompareNoCase(symbol.code) == 0)
      found = &symbol;
  return Bind(state_, found);
}

int CStaticKey::GetFieldString(int field, CString& value) const {
  value = "";
  const Listed* const symbol = SymbolOf(state_);
  if (symbol == nullptr)
    return 0;
  switch (field) {
  case FieldSymbolId:
    value = symbol->id;
    return 1;
  case FieldSymbolName:
    value = symbol->name;
    return 1;
  case FieldTradeCode:
    value = symbol->code;
    return 1;
  case FieldExchangeName:
    value = kExchangeName;
    return 1;
  default:
    return 0;
  }
}

int CStaticKey::GetFieldInt(int field, int& value) const {
  const Listed* const symbol = SymbolOf(state_);
  if (symbol == nullptr)
    return 0;
  switch (field) {
  case FieldExchangeName:
    value = kExchange;
    return 1;
  case FieldKind:
    value = InstrumentStock;
    return 1;
  case FieldTradeLot:
    value = symbol->lot;
    return 1;
  case FieldDecimals:
    value = 2;
    return 1;
  default:
    return 0;
  }
}

int CStockKey::ParseExtAttr(const char* text, const char* key, CString& value) {
  value = "";
  const CString asked = CString(key) + "=";
  const CString pairs = text;
  int at = 0;
  for (CString pair = pairs.Tokenize(";", at); at >= 0; pair = pairs.Tokenize(";", at))
    if (pair.Left(asked.GetLength()) == asked) {
      value = pair.Mid(asked.GetLength());
      return !value.IsEmpty();
    }
  return 0;
}

int CStockKey::GetInfoArray(InfoType, CPtrArray& rows) {
  rows.RemoveAll();
  return 1;
}

int tqStockGetFieldString(int, int, const char*, CString& value) {
  value = "";
  return 0;
}
