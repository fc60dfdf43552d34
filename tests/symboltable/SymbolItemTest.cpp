#include "symboltable/SymbolItem.h"

#include "symboltable/SymbolTable.h"
#include "tests/support/StandInTest.h"
#include "tests/symboltable/Records.h"

namespace {

// One symbol of the stand-in's market with given attributes.
class SymbolItemTest : public StandInTest {
protected:
  const CSymbolItem& Item() {
    standin::SetMarket(market);
    EXPECT_EQ(table.Load(), 1);
    const CSymbolItem* item = table.FindId("2330");
    EXPECT_NE(item, nullptr);
    return *item;
  }
  standin::Instrument& Instrument() { return market.instruments[0]; }
  void Give(int field, const char* value) { Instrument().fields.push_back({field, value}); }
  int Number(int field) {
    int value = 12345;
    EXPECT_EQ(Item().GetNumber(field, value), 1) << field;
    return value;
  }
  CString Text(int field) {
    CString value("before");
    EXPECT_EQ(Item().GetText(field, value), 1) << field;
    return value;
  }

  standin::Market market = SmallMarket();
  CSymbolTable table{"TW", 1};
};

TEST_F(SymbolItemTest, HoldsTheServicesNumbers) {
  Give(FieldBoard, "4");
  Give(FieldExpiryDate, "20271231");
  EXPECT_EQ(Number(FieldKind), InstrumentStock);
  EXPECT_EQ(Number(FieldBoard), 4);
  EXPECT_EQ(Number(FieldExchangeName), 1);
  EXPECT_EQ(Number(FieldLegExchange), 1);
  EXPECT_EQ(Number(FieldExpiryDate), 20271231);
  EXPECT_EQ(Number(FieldTradeLot), 1000);
  EXPECT_EQ(Number(FieldDecimals), 2);
  EXPECT_EQ(Number(FieldPriceScale), 100);
}

TEST_F(SymbolItemTest, HeldNumbersAskNoService) {
  const CSymbolItem& item = Item();
  standin::ClearCalls();
  int value = 0;
  for (const int field : {110, 111, 112, 113, 172, 176, 3006, 3007})
    item.GetNumber(field, value);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolItemTest, NumberThatTheServiceDidNotGiveIsNotRead) {
  standin::FailAlways("CStaticKey::GetFieldInt");
  const CSymbolItem& item = Item();
  for (const int field : {110, 111, 113, 172, 176, 3006, 3007}) {
    int value = 12345;
    EXPECT_EQ(item.GetNumber(field, value), 0) << field;
    EXPECT_EQ(value, -1) << field;
  }
  int exchange = 0;
  EXPECT_EQ(item.GetNumber(FieldExchangeName, exchange), 1) << "the table knows its exchange";
  EXPECT_EQ(exchange, 1);
}

TEST_F(SymbolItemTest, UnknownFieldIsNotRead) {
  for (const int field : {-1, 0, 1, 2, 109, 155, 999}) {
    int value = 12345;
    EXPECT_EQ(Item().GetNumber(field, value), 0) << field;
    EXPECT_EQ(value, -1) << field;
  }
  for (const int field : {-1, 0, 110, 112, 169, 3006, 999}) {
    CString value("before");
    EXPECT_EQ(Item().GetText(field, value), 0) << field;
    EXPECT_STREQ(value, "") << field;
  }
}

TEST_F(SymbolItemTest, PricesAreCountedInTheirSmallestStep) {
  const struct {
    const char* price;
    int decimals;
    int steps;
  } cases[] = {{"12.5", 2, 1250},   {"0.29", 2, 29},          {"1085", 0, 1085},
               {"1.005", 3, 1005},  {"-1.5", 1, -14},         {"abc", 2, 0},
               {" +3.25x", 2, 325}, {"1e300", 2, 2147483647}, {"-1e300", 2, -2147483647 - 1},
               {"nan", 2, 0},       {"12.5", 9, 2147483647},  {"12.5", -1, 1}};
  for (const int field : {FieldReferencePrice, FieldPreviousClose})
    for (const auto& each : cases) {
      Instrument().fields = {{field, each.price}};
      Instrument().decimals = each.decimals;
      EXPECT_EQ(Number(field), each.steps) << each.price;
    }
}

TEST_F(SymbolItemTest, ServiceNumbersAreReadAnewEachTime) {
  Give(FieldTradingStatus, "3");
  Give(FieldOddLot, " 25 units");
  EXPECT_EQ(Number(FieldTradingStatus), 3);
  EXPECT_EQ(Number(FieldOddLot), 25);
  const CSymbolItem& item = Item();
  market.instruments[0].fields = {{FieldOddLot, "26"}};
  standin::SetMarket(market);
  int value = 0;
  EXPECT_EQ(item.GetNumber(FieldOddLot, value), 1);
  EXPECT_EQ(value, 26);
}

TEST_F(SymbolItemTest, ContractSizeIsOneUnlessPositive) {
  for (const char* size : {"0", "-5", "abc", ""}) {
    Instrument().fields = {{FieldContractSize, size}};
    EXPECT_EQ(Number(FieldContractSize), 1) << size;
  }
  Instrument().fields = {{FieldContractSize, "50"}};
  EXPECT_EQ(Number(FieldContractSize), 50);
}

TEST_F(SymbolItemTest, ServiceNumberThatFailsIsNotRead) {
  const CSymbolItem& item = Item();
  standin::FailAlways("tqStockGetFieldString");
  for (const int field : {169, 170, 171, 178}) {
    int value = 12345;
    EXPECT_EQ(item.GetNumber(field, value), 0) << field;
    EXPECT_EQ(value, -1) << field;
  }
  int size = 12345;
  EXPECT_EQ(item.GetNumber(FieldContractSize, size), 0);
  EXPECT_EQ(size, 1);
}

TEST_F(SymbolItemTest, ServiceIsAskedByExchangeNumberAndSymbol) {
  const CSymbolItem& item = Item();
  standin::ClearCalls();
  CString value;
  item.GetText(FieldTradingNote, value);
  ASSERT_EQ(standin::Calls().size(), 1u);
  EXPECT_EQ(standin::Calls()[0].arguments, "190,1,2330");
}

TEST_F(SymbolItemTest, HoldsTheServicesTexts) {
  Give(FieldLegExchange, "TE");
  Give(FieldIndustry, "24");
  Give(FieldUnderlying, "2317");
  Give(FieldContractMonth, "202612");
  Give(FieldCurrency, "TWD");
  Instrument().exchangeCode = "X2330";
  Instrument().nameCn = Instrument().nameTw; // both code pages have it
  EXPECT_STREQ(Text(FieldSymbolId), "2330.TW");
  EXPECT_EQ(std::string(Text(FieldSymbolName)), standin::ToAnsi("台積電"));
  EXPECT_STREQ(Text(FieldMark), "S");
  EXPECT_STREQ(Text(FieldLegExchange), "TE");
  EXPECT_STREQ(Text(FieldIndustry), "24");
  EXPECT_STREQ(Text(FieldUnderlying), "2317");
  EXPECT_STREQ(Text(FieldContractMonth), "202612");
  EXPECT_STREQ(Text(FieldCurrency), "TWD");
  EXPECT_STREQ(Text(FieldExchangeCode), "X2330");
}

TEST_F(SymbolItemTest, HeldTextsAskNoService) {
  const CSymbolItem& item = Item();
  standin::ClearCalls();
  CString value;
  for (const int field : {1, 2, 109, 113, 155, 156, 157, 164, 184})
    EXPECT_EQ(item.GetText(field, value), 1) << field;
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolItemTest, ExchangeCodeThatIsTheSymbolIsAnsweredFromTheId) {
  EXPECT_STREQ(Text(FieldExchangeCode), "2330");
}

TEST_F(SymbolItemTest, HeldTextThatTheServiceDidNotGiveIsEmpty) {
  standin::FailAlways("CStaticKey::GetFieldString");
  for (const int field : {2, 109, 113, 155, 156, 157, 164, 184})
    EXPECT_STREQ(Text(field), "") << field;
}

TEST_F(SymbolItemTest, BlankMarkIsEmpty) {
  Give(FieldMark, " ");
  EXPECT_STREQ(Text(FieldMark), "");
}

TEST_F(SymbolItemTest, IdCanBeAskedWithoutItsExchange) {
  CString value;
  EXPECT_EQ(Item().GetText(FieldSymbolId, value, tq::IdPart::Symbol), 1);
  EXPECT_STREQ(value, "2330");
}

TEST_F(SymbolItemTest, TradeCodeIsAskedOfAFreshKey) {
  Instrument().exchangeCode = "X2330";
  EXPECT_STREQ(Text(FieldTradeCode), "X2330");
  for (const char* operation : {"CStaticKey::SetUpTrade", "CStaticKey::GetFieldString"}) {
    const CSymbolItem& item = Item();
    standin::FailCall(operation, 1);
    CString value("before");
    EXPECT_EQ(item.GetText(FieldTradeCode, value), 0) << operation;
    EXPECT_STREQ(value, "") << operation;
  }
}

TEST_F(SymbolItemTest, PriceTextThatFailsReadsAsTwoDashes) {
  Give(FieldReferencePrice, "12.50");
  EXPECT_STREQ(Text(FieldReferencePrice), "12.50");
  const CSymbolItem& item = Item();
  standin::FailAlways("tqStockGetFieldString");
  for (const int field : {170, 171, 179}) {
    CString value("before");
    EXPECT_EQ(item.GetText(field, value), 0) << field;
    EXPECT_STREQ(value, "--") << field;
  }
}

TEST_F(SymbolItemTest, NotesArePassedOnAsTheServiceGivesThem) {
  for (const int field : {188, 189, 190, 191, 192}) {
    Instrument().fields = {{field, "note"}};
    EXPECT_STREQ(Text(field), "note") << field;
    const CSymbolItem& item = Item();
    standin::FailCall("tqStockGetFieldString", 1);
    CString value("before");
    EXPECT_EQ(item.GetText(field, value), 0) << field;
    EXPECT_STREQ(value, "") << field;
  }
}

TEST_F(SymbolItemTest, UpdateOfOneSymbolLeavesOthersThatHadTheSameTexts) {
  for (standin::Instrument& instrument : market.instruments)
    instrument.fields = {{FieldIndustry, "24"}, {FieldCurrency, "TWD"}};
  const CSymbolItem& updated = Item();
  Instrument().fields = {{FieldIndustry, "25"}};
  standin::SetMarket(market);
  ASSERT_EQ(table.Update("2330.TW"), 1);
  CString text;
  updated.GetText(FieldIndustry, text);
  EXPECT_STREQ(text, "25");
  updated.GetText(FieldCurrency, text);
  EXPECT_STREQ(text, "");
  const CSymbolItem* const other = table.FindId("2317");
  other->GetText(FieldIndustry, text);
  EXPECT_STREQ(text, "24");
  other->GetText(FieldCurrency, text);
  EXPECT_STREQ(text, "TWD");
}

} // namespace
