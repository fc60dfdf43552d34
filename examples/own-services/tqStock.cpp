// The stock-attribute library: reads what VLProxy wrote into a record.
#include <tqStock.h>

#include <CPtrArray.h>

#include <cstring>

#include "Market.h"

namespace {

// The state of a key object: the record that it was given.
const BaseAttr* RecordOf(const unsigned char* state) {
  const BaseAttr* record = nullptr;
  std::memcpy(&record, state, sizeof record);
  return record;
}

} // namespace

CStockAttr::CStockAttr() : state_() {}

int CStockAttr::GetID(CString& id, int full) const {
  const BaseAttr* const record = RecordOf(state_);
  id = record == nullptr ? "" : full != 0 ? ListedOf(*record).id : ListedOf(*record).code;
  return record != nullptr;
}

CStaticKey::CStaticKey() {}
CStaticKey::~CStaticKey() {}

int CStaticKey::Setup(const BaseAttr* record) {
  if (record != nullptr && record->usable == 0)
    record = nullptr;
  std::memcpy(state_, &record, sizeof record);
  return record != nullptr;
}

int CStaticKey::SetUpTrade(int, const char*) {
  return 0; // no trading data
}

int CStaticKey::GetFieldString(int field, CString& value) const {
  value = "";
  const BaseAttr* const record = RecordOf(state_);
  if (record == nullptr)
    return 0;
  switch (field) {
  case FieldSymbolId:
    value = ListedOf(*record).id;
    return 1;
  case FieldSymbolName:
    value = ListedOf(*record).name;
    return 1;
  case FieldExchangeName:
    value = kExchangeName;
    return 1;
  default:
    return 0;
  }
}

int CStaticKey::GetFieldInt(int field, int& value) const {
  const BaseAttr* const record = RecordOf(state_);
  if (record == nullptr)
    return 0;
  switch (field) {
  case FieldExchangeName:
    value = kExchange;
    return 1;
  case FieldKind:
    value = InstrumentStock;
    return 1;
  case FieldTradeLot:
    value = ListedOf(*record).lot;
    return 1;
  case FieldDecimals:
    value = 2;
    return 1;
  default:
    return 0;
  }
}

int CStockKey::ParseExtAttr(const char*, const char*, CString& value) {
  value = "";
  return 0; // VLProxy has no extended attributes
}

int CStockKey::GetInfoArray(InfoType, CPtrArray& rows) {
  rows.RemoveAll();
  return 1;
}

int tqStockGetFieldString(int, int, const char*, CString& value) {
  value = "";
  return 0;
}
