// The stand-in TQSProxy: trading systems, accounts, holdings. Numbers of packed records are
// compared inside EXPECT_TRUE because the other macros would bind references to them, which are
// misaligned.
#include <cstring>

#include "tests/terminal/TradingServiceTest.h"

namespace {

TEST_F(TradingService, ListsTheSystemsInTheMarketsOrder) {
  ASSERT_EQ(TQSGetTSCount(), 2);
  TQS_TSINFO info;
  ASSERT_NE(TQSGetTSInfo(0, &info), 0);
  EXPECT_STREQ(info.id, "VTS01");
  ASSERT_NE(TQSGetTSInfo(1, &info), 0);
  EXPECT_STREQ(info.id, "VTS02");
}

TEST_F(TradingService, FillsEveryByteOfASystem) {
  for (const bool traditional : {true, false}) {
    standin::SetTraditional(traditional);
    TQS_TSINFO expected{};
    std::strcpy(expected.id, "VTS01");
    std::strcpy(expected.name, standin::ToAnsi(traditional ? "示範證券" : "示范证券").c_str());
    TQS_TSINFO info;
    std::memset(&info, 'x', sizeof info);
    ASSERT_NE(TQSGetTSInfo(0, &info), 0);
    EXPECT_EQ(std::memcmp(&info, &expected, sizeof info), 0);
  }
}

TEST_F(TradingService, FillsEveryByteOfAnAccount) {
  TQS_ACCOUNTINFO expected{};
  expected.type = kFutures;
  std::strcpy(expected.id, "F0211");
  std::strcpy(expected.displayId, "F021-***1");
  TQS_ACCOUNTINFO account;
  std::memset(&account, 'x', sizeof account);
  ASSERT_NE(TQSGetTSAccount("VTS01", 1, &account), 0);
  EXPECT_EQ(std::memcmp(&account, &expected, sizeof account), 0);
}

TEST_F(TradingService, TextsAreCutToTheirFieldsAtAWholeCharacter) {
  std::string name = "A";
  for (int i = 0; i < 400; ++i)
    name += "許";
  standin::Market market;
  market.tradingSystems = {
      {std::string(40, 'S'), name, name, true, {{1, std::string(40, 'A'), name, ""}}}};
  standin::SetMarket(market);
  TQS_TSINFO info;
  ASSERT_NE(TQSGetTSInfo(0, &info), 0);
  EXPECT_EQ(std::string(info.id), std::string(31, 'S'));
  EXPECT_EQ(std::strlen(info.name), 255u);
  TQS_ACCOUNTINFO account;
  ASSERT_NE(TQSGetTSAccount(std::string(40, 'S').c_str(), 0, &account), 0);
  EXPECT_EQ(std::string(account.id), std::string(31, 'A'));
  EXPECT_EQ(std::strlen(account.displayId), 767u);
}

TEST_F(TradingService, DisplayIdsAreInTheCodePageOfTheMoment) {
  standin::Market market = TradingMarket();
  market.tradingSystems[0].accounts[0].displayId = "主帳";
  standin::SetMarket(market);
  for (const bool traditional : {true, false}) {
    standin::SetTraditional(traditional);
    TQS_ACCOUNTINFO account;
    ASSERT_NE(TQSGetTSAccount("VTS01", 0, &account), 0);
    EXPECT_EQ(account.displayId, standin::ToAnsi("主帳"));
  }
}

TEST_F(TradingService, AnIndexOutOfRangeFailsAndLeavesTheRecordAlone) {
  TQS_TSINFO info;
  std::memset(&info, 'x', sizeof info);
  TQS_ACCOUNTINFO account;
  std::memset(&account, 'x', sizeof account);
  for (const int index : {-1, 2, 2147483647}) {
    EXPECT_EQ(TQSGetTSInfo(index, &info), 0);
    EXPECT_EQ(TQSGetTSAccount("VTS01", index, &account), 0);
  }
  EXPECT_EQ(std::string(info.id, sizeof info), std::string(sizeof info, 'x'));
  EXPECT_EQ(account.id[0], 'x');
}

TEST_F(TradingService, CountsTheAccountsOfASystem) {
  EXPECT_EQ(TQSGetTSAccountCount("VTS01"), 2);
  EXPECT_EQ(TQSGetTSAccountCount("vts02"), 2);
  EXPECT_EQ(TQSGetTSAccountCount("NOSUCH"), 0);
  EXPECT_EQ(TQSGetTSAccountCount(""), 0);
  EXPECT_EQ(TQSGetTSAccountCount(nullptr), 0);
}

TEST_F(TradingService, ASystemIsAvailableUntilTheMarketOrATestSaysOtherwise) {
  EXPECT_NE(TQSGetTSStatus("VTS01"), 0);
  EXPECT_NE(TQSGetTSStatus("vts01"), 0);
  EXPECT_EQ(TQSGetTSStatus("NOSUCH"), 0);
  EXPECT_EQ(TQSGetTSStatus(nullptr), 0);
  ASSERT_TRUE(standin::SetAvailable("VTS01", false));
  EXPECT_EQ(TQSGetTSStatus("VTS01"), 0);
  EXPECT_NE(TQSGetTSStatus("VTS02"), 0);
  EXPECT_EQ(TQSGetTSCount(), 2);
  ASSERT_TRUE(standin::SetAvailable("VTS01", true));
  EXPECT_NE(TQSGetTSStatus("VTS01"), 0);
  EXPECT_FALSE(standin::SetAvailable("NOSUCH", true));
  standin::Market market = TradingMarket();
  market.tradingSystems[1].available = false;
  standin::SetMarket(market);
  EXPECT_EQ(TQSGetTSStatus("VTS02"), 0);
}

TEST_F(TradingService, HoldingsGoBySystemAccountAndType) {
  EXPECT_EQ(Holdings("VTS01", "98011", kStocks), "2330.TW,2317.TW,0050.TW");
  EXPECT_EQ(Holdings("vts01", "f0211", kFutures), "TXFL6.TF");
  EXPECT_EQ(Holdings("VTS02", "70061", kStocks), "2330.TW,6488.TE");
  EXPECT_EQ(Holdings("VTS02", "F7001", kFutures), "");
  EXPECT_EQ(Holdings("VTS01", "98011", kFutures), "(failed)");
  EXPECT_EQ(Holdings("VTS02", "98011", kStocks), "(failed)");
  EXPECT_EQ(Holdings("NOSUCH", "98011", kStocks), "(failed)");
}

TEST_F(TradingService, OneAccountIdMayStandForTwoTypes) {
  standin::Market market;
  market.tradingSystems = {{"S", "", "", true, {{1, "A", "a", "1"}, {2, "A", "a", "2"}}}};
  standin::SetMarket(market);
  EXPECT_EQ(Holdings("S", "A", kFutures), "2");
  EXPECT_EQ(Holdings("S", "A", kStocks), "1");
}

TEST_F(TradingService, AFillChangesTheHoldingsOfOneAccount) {
  ASSERT_TRUE(standin::SetHoldings("VTS01", "98011", 1, "6488.TE"));
  EXPECT_EQ(Holdings("VTS01", "98011", kStocks), "6488.TE");
  EXPECT_EQ(Holdings("VTS01", "F0211", kFutures), "TXFL6.TF");
  EXPECT_FALSE(standin::SetHoldings("VTS01", "98011", 2, "x"));
  EXPECT_FALSE(standin::SetHoldings("VTS02", "98011", 1, "x"));
  EXPECT_FALSE(standin::SetHoldings("NOSUCH", "98011", 1, "x"));
}

TEST_F(TradingService, HoldingsAreHandedOutAsTheyAre) {
  ASSERT_TRUE(standin::SetHoldings("VTS01", "98011", 1, ",\xB3,, 2330.TW,"));
  EXPECT_EQ(Holdings("VTS01", "98011", kStocks), ",\xB3,, 2330.TW,");
}

TEST_F(TradingService, MissingTextsAndOutputsAreFailures) {
  EXPECT_EQ(TQSGetTSInfo(0, nullptr), 0);
  TQS_ACCOUNTINFO account;
  EXPECT_EQ(TQSGetTSAccount(nullptr, 0, &account), 0);
  EXPECT_EQ(TQSGetTSAccount("VTS01", 0, nullptr), 0);
  EXPECT_EQ(Holdings(nullptr, "98011", kStocks), "(failed)");
  EXPECT_EQ(Holdings("VTS01", nullptr, kStocks), "(failed)");
  EXPECT_EQ(TQSGetTSAccountHolding("VTS01", "98011", kStocks, nullptr), 0);
}

TEST_F(TradingService, AFailureTakesTheTextBack) {
  char stale[] = "stale";
  char* text = stale;
  EXPECT_EQ(TQSGetTSAccountHolding("VTS01", "NOSUCH", kStocks, &text), 0);
  EXPECT_EQ(text, nullptr);
}

} // namespace
