#include <cstring>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

constexpr int kUnknownField = 9999;

// One read of an attribute as text succeeds, or fails, with this text.
void AnswerText(int field, int result, const char* text) {
  TheFaults()._ZNK10CStaticKey14GetFieldStringEiR7CString = [=](const CStaticKey* key, int asked,
                                                                CString* value) {
    const int read = __real__ZNK10CStaticKey14GetFieldStringEiR7CString(key, asked, value);
    if (asked != field || (read == 0 && field != kUnknownField))
      return read;
    *value = text;
    return result;
  };
}

void AnswerNumber(int field, int result, int number) {
  TheFaults()._ZNK10CStaticKey11GetFieldIntEiRi = [=](const CStaticKey* key, int asked,
                                                      int* value) {
    if (asked != field)
      return __real__ZNK10CStaticKey11GetFieldIntEiRi(key, asked, value);
    *value = number;
    return result;
  };
}

void GiveField(int field, const char* value) {
  ChangeMarket([=](auto& market) { market.instruments[0].fields = {{field, value}}; });
}

std::vector<Breach> KeyBreaches() {
  return {
      {"UsableRecordIsRefused",
       Rule::KeySetup,
       [] { standin::FailAlways("CStaticKey::Setup"); },
       {Rule::AttributesCode}},
      {"SetupWritesRecord", Rule::KeyRecord,
       [] {
         TheFaults()._ZN10CStaticKey5SetupEPK8BaseAttr = [](CStaticKey* key,
                                                            const BaseAttr* record) {
           if (record != nullptr && record->usable != 0)
             const_cast<BaseAttr*>(record)->rest[1000] = 'x';
           return __real__ZN10CStaticKey5SetupEPK8BaseAttr(key, record);
         };
       }},
      {"RefusalKeepsRecordBefore", Rule::KeyUnbound,
       [] {
         TheFaults()._ZN10CStaticKey5SetupEPK8BaseAttr = [](CStaticKey* key,
                                                            const BaseAttr* record) {
           return record == nullptr ? 0 : __real__ZN10CStaticKey5SetupEPK8BaseAttr(key, record);
         };
       }},
      {"FullIdIsBare",
       Rule::KeyId,
       [] {
         TheFaults()._ZNK10CStockAttr5GetIDER7CStringi = [](const CStockAttr* key, CString* id,
                                                            int) {
           return __real__ZNK10CStockAttr5GetIDER7CStringi(key, id, 0);
         };
       },
       {Rule::AttributesCode}},
      {"FailureLeavesText", Rule::FailedText, [] { AnswerText(kUnknownField, 0, "text"); }},
      {"FailureWritesNumber", Rule::FailedNumber, [] { AnswerNumber(kUnknownField, 0, 0); }},
      {"UnknownFieldSucceeds",
       Rule::FieldUnknown,
       [] { AnswerText(kUnknownField, 1, ""); },
       {Rule::KeyUnbound}},
      {"TextIsANumber", Rule::FieldNumbers, [] { AnswerNumber(FieldSymbolName, 1, 7); }},
  };
}

std::vector<Breach> FieldBreaches() {
  return {
      {"NameIsAnother", Rule::FieldName, [] { AnswerText(FieldSymbolName, 1, "another"); }},
      {"MarkOfTwoLetters", Rule::FieldMarkText, [] { AnswerText(FieldMark, 1, "ab"); }},
      {"KindIsNone", Rule::FieldKindOf, [] { GiveField(FieldKind, "77"); }},
      {"ExchangeNameIsAnother", Rule::FieldExchange,
       [] { AnswerText(FieldExchangeName, 1, "XX"); }},
      {"LotIsZero", Rule::FieldLot,
       [] { ChangeMarket([](auto& market) { market.instruments[0].lot = 0; }); }},
      {"ScaleDoesNotFit",
       Rule::FieldScale,
       [] { AnswerNumber(FieldPriceScale, 1, 7); },
       {Rule::FieldNumberText, Rule::KeyUnbound}},
      {"ExpiryIsNoDate", Rule::FieldExpiry, [] { GiveField(FieldExpiryDate, "20261399"); }},
      {"MonthIsCut", Rule::FieldMonth, [] { GiveField(FieldContractMonth, "2026"); }},
      {"NumberIsNotDecimal", Rule::FieldNumberText, [] { AnswerText(FieldTradeLot, 1, "1,000"); }},
      {"NoTradingDataKey", Rule::TradeSetUp, [] { standin::FailAlways("CStaticKey::SetUpTrade"); }},
      {"UnknownSymbolTrades", Rule::TradeUnknown,
       [] {
         TheFaults().tqStockGetFieldString = [](int field, int exchId, const char* code,
                                                CString* value) {
           const int result = __real_tqStockGetFieldString(field, exchId, code, value);
           return std::strchr(code, '?') != nullptr ? 1 : result;
         };
       }},
      {"PriceWithComma", Rule::TradePrice,
       [] { ChangeMarket([](auto& market) { market.instruments[0].price = "1,085"; }); }},
  };
}

std::vector<Breach> TableBreaches() {
  return {
      {"ValueLosesBlanks", Rule::ExtPair,
       [] {
         TheFaults()._ZN9CStockKey12ParseExtAttrEPKcS1_R7CString = [](const char* text,
                                                                      const char* key,
                                                                      CString* value) {
           const int result = __real__ZN9CStockKey12ParseExtAttrEPKcS1_R7CString(text, key, value);
           value->Trim();
           return result;
         };
       }},
      {"EmptyValueSucceeds", Rule::ExtFails,
       [] {
         TheFaults()._ZN9CStockKey12ParseExtAttrEPKcS1_R7CString =
             [](const char* text, const char* key, CString* value) {
               __real__ZN9CStockKey12ParseExtAttrEPKcS1_R7CString(text, key, value);
               return 1;
             };
       }},
      {"RowIsNull", Rule::TableRows,
       [] {
         TheFaults()._ZN9CStockKey12GetInfoArrayE8InfoTypeR9CPtrArray = [](InfoType type,
                                                                           CPtrArray* rows) {
           const int result = __real__ZN9CStockKey12GetInfoArrayE8InfoTypeR9CPtrArray(type, rows);
           if (type == InfoEconomicIndicators)
             rows->Add(nullptr);
           return result;
         };
       }},
      {"RowOfTwoColumns", Rule::TableColumns,
       [] {
         standin::SetIndicators(8, {{"a", "b"}});
       }},
      {"CodeTwice", Rule::TableCode,
       [] {
         standin::SetIndicators(8, {{"", "", "A"}, {"", "", "A"}});
       }},
      {"UnknownTableHasRows", Rule::TableUnknown,
       [] {
         standin::SetIndicators(9999, {{"", "", "A"}});
       }},
  };
}

} // namespace

std::vector<Breach> AttributeBreaches() {
  std::vector<Breach> all = KeyBreaches();
  for (const auto& some : {FieldBreaches(), TableBreaches()})
    all.insert(all.end(), some.begin(), some.end());
  return all;
}
