// The stand-in tqStock.
#include "platform/services/tqStock.h"

#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

class StockAttributes : public StandInTest {
protected:
  // The record of one symbol, set up in `key`.
  int SetUpKey(const char* id) {
    VLFree(attrs.list);
    attrs.list = nullptr;
    EXPECT_NE(VLGetBaseAttrs(id, &attrs.list, &attrs.count, 1), 0);
    return key.Setup(attrs.list);
  }

  std::string Text(int field) {
    CString value = "stale";
    const int found = key.GetFieldString(field, value);
    return found ? value.GetString() : std::string("none/") + value.GetString();
  }

  int Number(int field) {
    int value = -7;
    const bool found = key.GetFieldInt(field, value) != 0;
    EXPECT_EQ(found, value != -7);
    return value;
  }

  static std::string Traded(int field, int exchId, const char* code) {
    CString value = "stale";
    const int found = tqStockGetFieldString(field, exchId, code, value);
    return found ? value.GetString() : std::string("none/") + value.GetString();
  }

  static constexpr const char* kNone = "none/";

  Attrs attrs;
  CStaticKey key;
};

TEST_F(StockAttributes, AKeyAnswersTheFieldsOfItsRecord) {
  ASSERT_NE(SetUpKey("2330.TW"), 0);
  EXPECT_EQ(Text(FieldSymbolId), "2330.TW");
  SymbolInfo info;
  ASSERT_NE(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_EQ(Text(FieldSymbolName), info.name);
  EXPECT_EQ(Text(FieldMark), "S");
  EXPECT_EQ(Text(FieldExchangeName), "TW");
  EXPECT_EQ(Text(FieldLegExchange), "TW");
  EXPECT_EQ(Text(FieldExchangeCode), "2330");
  EXPECT_EQ(Text(FieldTradeLot), "1000");
  EXPECT_EQ(Text(FieldIndustry), "");
  EXPECT_EQ(Number(FieldKind), InstrumentStock);
  EXPECT_EQ(Number(FieldBoard), 0);
  EXPECT_EQ(Number(FieldExchangeName), 1);
  EXPECT_EQ(Number(FieldLegExchange), 1);
  EXPECT_EQ(Number(FieldExpiryDate), 0);
  EXPECT_EQ(Number(FieldTradeLot), 1000);
  EXPECT_EQ(Number(FieldDecimals), 2);
  EXPECT_EQ(Number(FieldPriceScale), 100);
}

// Symptom: ten or more decimals overflowed the scale.
TEST_F(StockAttributes, ThePriceScaleStopsAtTheGreatestPowerOfTen) {
  const struct {
    int decimals;
    int scale;
  } cases[] = {{0, 1}, {-3, 1}, {9, 1'000'000'000}, {10, 1'000'000'000}, {32767, 1'000'000'000}};
  for (const auto& each : cases) {
    standin::Market market = standin::CurrentMarket();
    market.instruments[0].decimals = each.decimals;
    standin::SetMarket(market);
    ASSERT_NE(SetUpKey("2330.TW"), 0);
    EXPECT_EQ(Number(FieldPriceScale), each.scale) << each.decimals;
    EXPECT_EQ(Number(FieldDecimals), each.decimals);
  }
}

TEST_F(StockAttributes, AKeyHasNoTradingDataAndNoUnknownFields) {
  ASSERT_NE(SetUpKey("2330.TW"), 0);
  for (const int field : {static_cast<int>(FieldReferencePrice), 81, 178, 188, 0, -1, 9999})
    EXPECT_EQ(Text(field), kNone) << field;
  EXPECT_EQ(Number(FieldSymbolName), -7);
}

TEST_F(StockAttributes, TheIdIsFullOrBare) {
  ASSERT_NE(SetUpKey("BRK.B.NYSE"), 0);
  CString id;
  EXPECT_NE(key.GetID(id, 1), 0);
  EXPECT_STREQ(id, "BRK.B.NYSE");
  EXPECT_NE(key.GetID(id, 0), 0);
  EXPECT_STREQ(id, "BRK.B");
}

TEST_F(StockAttributes, AKeyThatIsNotSetUpAnswersNothing) {
  CString id = "stale";
  EXPECT_EQ(key.GetID(id, 1), 0);
  EXPECT_STREQ(id, "");
  EXPECT_EQ(Text(FieldSymbolName), kNone);
  EXPECT_EQ(Number(FieldDecimals), -7);
}

TEST_F(StockAttributes, RefusesRecordsWithoutCodeOrMarkedUnusable) {
  standin::Market market = SmallMarket();
  market.instruments[0].usable = false;
  market.instruments[1].code = "";
  standin::SetMarket(market);
  Attrs all;
  ASSERT_NE(VLGetBaseAttrs2(1, -1, &all.list, &all.count, 0, 1), 0);
  EXPECT_FALSE(all.list[0].usable != 0);
  EXPECT_EQ(key.Setup(&all.list[0]), 0);
  EXPECT_EQ(key.Setup(&all.list[1]), 0);
  EXPECT_EQ(key.Setup(nullptr), 0);
  EXPECT_NE(key.Setup(&all.list[2]), 0);
  EXPECT_EQ(key.Setup(&all.list[0]), 0);
  EXPECT_EQ(Text(FieldSymbolId), kNone);
}

TEST_F(StockAttributes, TheMarketCanSayMoreOfAnInstrument) {
  standin::Market market = SmallMarket();
  market.instruments[0].fields = {{FieldMark, " "},
                                  {FieldBoard, "3"},
                                  {FieldIndustry, "CHIPS"},
                                  {FieldUnderlying, "SOX"},
                                  {FieldContractMonth, "202612"},
                                  {FieldCurrency, "TWD"},
                                  {FieldExpiryDate, "20261216"},
                                  {FieldLegExchange, "TF"},
                                  {FieldMarginNote, "60%"},
                                  {FieldReferencePrice, "9.5"}};
  standin::SetMarket(market);
  ASSERT_NE(SetUpKey("2330.TW"), 0);
  EXPECT_EQ(Text(FieldMark), " ");
  EXPECT_EQ(Number(FieldBoard), 3);
  EXPECT_EQ(Text(FieldIndustry), "CHIPS");
  EXPECT_EQ(Text(FieldUnderlying), "SOX");
  EXPECT_EQ(Text(FieldContractMonth), "202612");
  EXPECT_EQ(Text(FieldCurrency), "TWD");
  EXPECT_EQ(Number(FieldExpiryDate), 20261216);
  EXPECT_EQ(Text(FieldLegExchange), "TF");
  EXPECT_EQ(Traded(FieldMarginNote, 1, "2330"), "60%");
  EXPECT_EQ(Traded(FieldReferencePrice, 1, "2330"), "9.5");
}

TEST_F(StockAttributes, TradingDataComesFromTheMarket) {
  EXPECT_EQ(Traded(FieldTradeCode, 1, "2330"), "2330");
  EXPECT_EQ(Traded(FieldTradingStatus, 1, "2330"), "1");
  EXPECT_EQ(Traded(FieldReferencePrice, 1, "2317"), "212.5");
  EXPECT_EQ(Traded(FieldPreviousClose, 1, "2317"), "212.5");
  EXPECT_EQ(Traded(FieldOddLot, 1, "2317"), "1");
  EXPECT_EQ(Traded(FieldContractSize, 3, "txfl6"), "1");
  EXPECT_EQ(Traded(FieldExchangeTitle, 2, "6488"),
            standin::ToAnsi(IsTraditionChinese() != 0 ? "上櫃" : "上柜"));
}

TEST_F(StockAttributes, TradingDataIsSilentAboutWhatTheMarketDoesNotKnow) {
  EXPECT_EQ(Traded(FieldReferencePrice, 2, "8069"), kNone); // has no price
  EXPECT_EQ(Traded(FieldContractSize, 1, "2330"), kNone);   // no contract
  EXPECT_EQ(Traded(FieldOpeningReference, 1, "2330"), kNone);
  EXPECT_EQ(Traded(FieldMarginNote, 1, "2330"), kNone);
  EXPECT_EQ(Traded(FieldReferencePrice, 1, "NOSUCH"), kNone);
  EXPECT_EQ(Traded(FieldReferencePrice, 99, "2330"), kNone);
  EXPECT_EQ(Traded(FieldReferencePrice, 1, nullptr), kNone);
  EXPECT_EQ(Traded(FieldReferencePrice, 1, ""), kNone);
}

TEST_F(StockAttributes, AKeySetUpForTradeAnswersTheTradeCodeAlone) {
  standin::Market market = SmallMarket();
  market.instruments[0].exchangeCode = "X2330";
  standin::SetMarket(market);
  ASSERT_NE(key.SetUpTrade(1, "2330"), 0);
  EXPECT_EQ(Text(FieldTradeCode), "X2330");
  EXPECT_EQ(Text(FieldSymbolName), kNone);
  EXPECT_EQ(key.SetUpTrade(1, "NOSUCH"), 0);
  EXPECT_EQ(Text(FieldTradeCode), kNone);
  EXPECT_EQ(key.SetUpTrade(1, nullptr), 0);
  EXPECT_EQ(key.SetUpTrade(1, "12345678901234567890123456789012345678901234567890"), 0);
}

} // namespace
