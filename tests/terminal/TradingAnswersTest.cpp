// The trading-system proxy under tests: counted texts, recorded calls, raw records, and a market
// that replaces another.
#include <cstring>

#include "platform/services/VLProxy.h"
#include "tests/terminal/TradingServiceTest.h"

namespace {

TEST_F(TradingService, TextsThatAreNotReleasedAreCounted) {
  char* text = nullptr;
  ASSERT_NE(TQSGetTSAccountHolding("VTS02", "F7001", kFutures, &text), 0);
  EXPECT_EQ(standin::OutstandingArrays(), 1);
  TQSFree(text);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  TQSFree(nullptr);
  EXPECT_EQ(standin::BadReleases(), 0);
}

TEST_F(TradingService, ATextGivenToTheOtherServiceOrReleasedTwiceIsABadRelease) {
  char* text = nullptr;
  ASSERT_NE(TQSGetTSAccountHolding("VTS01", "98011", kStocks, &text), 0);
  VLFree(text);
  EXPECT_EQ(standin::BadReleases(), 1);
  EXPECT_EQ(standin::OutstandingArrays(), 1);
  TQSFree(text);
  TQSFree(text);
  EXPECT_EQ(standin::BadReleases(), 2);
  ExchInfo* exchanges = nullptr;
  int count = 0;
  ASSERT_NE(VLGetExch(&exchanges, &count, 1), 0);
  TQSFree(exchanges);
  EXPECT_EQ(standin::BadReleases(), 3);
  VLFree(exchanges);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  standin::Reset(); // the fixture checks what was released
}

TEST_F(TradingService, CallsAreRecorded) {
  TQS_TSINFO info;
  TQS_ACCOUNTINFO account;
  TQSGetTSCount();
  TQSGetTSInfo(1, &info);
  TQSGetTSStatus("VTS01");
  TQSGetTSAccountCount("VTS01");
  TQSGetTSAccount("VTS01", 1, &account);
  Holdings("VTS01", "98011", kStocks);
  std::string calls;
  for (const standin::Call& call : standin::Calls())
    calls += call.operation + "(" + call.arguments + ") ";
  EXPECT_EQ(calls, "TQSGetTSCount() TQSGetTSInfo(1) TQSGetTSStatus(VTS01) "
                   "TQSGetTSAccountCount(VTS01) TQSGetTSAccount(VTS01,1) "
                   "TQSGetTSAccountHolding(VTS01,98011,1) ");
}

TEST_F(TradingService, AnswersStandInThePlaceOfSystemsAndAccounts) {
  std::vector<TQS_TSINFO> systems(3);
  std::memset(&systems[1], 'y', sizeof(TQS_TSINFO));
  std::strcpy(systems[2].id, "RAW");
  standin::AnswerTradingSystems(systems);
  std::vector<TQS_ACCOUNTINFO> accounts(1);
  std::memset(accounts.data(), 'z', sizeof(TQS_ACCOUNTINFO));
  standin::AnswerAccounts("VTS01", accounts);
  EXPECT_EQ(TQSGetTSCount(), 3);
  TQS_TSINFO info;
  ASSERT_NE(TQSGetTSInfo(1, &info), 0);
  EXPECT_EQ(std::memcmp(&info, &systems[1], sizeof info), 0);
  EXPECT_EQ(TQSGetTSInfo(3, &info), 0);
  EXPECT_NE(TQSGetTSStatus("RAW"), 0);
  EXPECT_NE(TQSGetTSStatus(std::string(32, 'y').c_str()), 0);
  EXPECT_EQ(TQSGetTSStatus("NOSUCH"), 0);
  EXPECT_EQ(TQSGetTSAccountCount("VTS01"), 1);
  TQS_ACCOUNTINFO account;
  ASSERT_NE(TQSGetTSAccount("VTS01", 0, &account), 0);
  EXPECT_EQ(std::memcmp(&account, accounts.data(), sizeof account), 0);
  EXPECT_EQ(TQSGetTSAccountCount("VTS02"), 2);
}

TEST_F(TradingService, AnswersEndWithReset) {
  standin::AnswerTradingSystems({});
  standin::AnswerAccounts("VTS01", {});
  EXPECT_EQ(TQSGetTSCount(), 0);
  EXPECT_EQ(TQSGetTSAccountCount("VTS01"), 0);
  standin::Reset();
  standin::SetMarket(TradingMarket());
  EXPECT_EQ(TQSGetTSCount(), 2);
  EXPECT_EQ(TQSGetTSAccountCount("VTS01"), 2);
}

TEST_F(TradingService, ANewMarketReplacesTheSystems) {
  standin::SetMarket(SmallMarket());
  EXPECT_EQ(TQSGetTSCount(), 0);
  EXPECT_EQ(Holdings("VTS01", "98011", kStocks), "(failed)");
}

} // namespace
