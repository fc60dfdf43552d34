// The mirror of the trading-system proxy.
#include "accounts/TradingTable.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/accounts/TradingRecords.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

class TradingTableTest : public StandInTest {
protected:
  TradingTableTest() : table(directory.Joined("TSList.xml").c_str()) {
    standin::Market market = SmallMarket();
    market.tradingSystems = {
        {"T1", "one", "one", true, {{1, "a", "A", "2330.TW,2317.TW"}, {2, "b", "B", "2317.TW"}}},
        {"T2", "two", "two", true, {{1, "a", "A2", "1101.TW"}}},
    };
    standin::SetMarket(market);
  }

  // "T1:a1=2330.TW,b2=..|T2:" : ids of the systems, ids, types and holdings of the accounts.
  std::string Shape() {
    std::string shape;
    for (const tq::CTS& system : table.Systems()) {
      shape += (shape.empty() ? "" : "|") + std::string(system.Id()) + ":";
      for (const tq::CAccount& account : system.accounts)
        shape += " " + std::string(account.Id()) + std::to_string(account.info.type) + "=" +
                 account.holdings.GetString();
    }
    return shape;
  }
  std::string File() { return directory.Read("TSList.xml"); }

  TempDir directory;
  tq::TradingTable table;
};

TEST_F(TradingTableTest, IsEmptyAndHasNoFileUntilTheFirstLogin) {
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(table.Find("T1"), nullptr);
  EXPECT_FALSE(directory.Exists("TSList.xml"));
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(TradingTableTest, AReloadReadsAccountsAndHoldingsInOrder) {
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1: a1=2330.TW,2317.TW b2=2317.TW");
  EXPECT_STREQ(table.Find("T1")->Name(), "one");
  EXPECT_STREQ(table.Find("T1")->MergedHoldings(), "2330.TW,2317.TW");
}

TEST_F(TradingTableTest, AReloadKeepsTheIndexAndANewSystemIsAppended) {
  table.Reload("T2");
  table.Reload("T1");
  standin::SetHoldings("T2", "a", 1, "2454.TW");
  table.Reload("T2");
  EXPECT_EQ(Shape(), "T2: a1=2454.TW|T1: a1=2330.TW,2317.TW b2=2317.TW");
}

TEST_F(TradingTableTest, AnUnavailableSystemIsEmptiedAtItsIndexAndKeepsItsId) {
  table.Reload("T1");
  table.Reload("T2");
  standin::SetAvailable("T1", false);
  standin::ClearCalls();
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1:|T2: a1=1101.TW");
  EXPECT_STREQ(table.Find("T1")->Name(), "");
  EXPECT_EQ(standin::CountCalls("TQSGetTSCount"), 0);
  EXPECT_NE(File().find("\t<TS ID = 'T1' Name = '' >\n\t</TS>\n"), std::string::npos);
  standin::SetAvailable("T1", true);
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1: a1=2330.TW,2317.TW b2=2317.TW|T2: a1=1101.TW");
}

TEST_F(TradingTableTest, ASystemThatTheServiceNoLongerListsIsEmptied) {
  table.Reload("T1");
  standin::FailAlways("TQSGetTSInfo");
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1:");
}

TEST_F(TradingTableTest, AnUnknownSystemIsNotAdded) {
  table.Reload("none");
  table.Reload("");
  EXPECT_EQ(Shape(), "");
  EXPECT_NE(File().find("<TSList>\n</TSList>"), std::string::npos);
}

TEST_F(TradingTableTest, IdsAreComparedByteByByte) {
  table.Reload("t1");
  EXPECT_EQ(Shape(), "");
  table.Reload("T1");
  EXPECT_EQ(table.Find("t1"), nullptr);
  EXPECT_EQ(table.Find("T1")->FindAccount("A", static_cast<TqsAccType>(1)), nullptr);
}

TEST_F(TradingTableTest, ASystemWhoseRecordFailsIsPassedOver) {
  standin::FailCall("TQSGetTSInfo", 1); // T1's
  table.Reload("T2");
  EXPECT_EQ(Shape(), "T2: a1=1101.TW");
}

TEST_F(TradingTableTest, TheFirstOfTwoRecordsWithOneIdCounts) {
  standin::AnswerTradingSystems({tqtest::SystemInfo("T0", ""), tqtest::SystemInfo("T1", "first"),
                                 tqtest::SystemInfo("T1", "second")});
  table.Reload("T1");
  EXPECT_STREQ(table.Find("T1")->Name(), "first");
  EXPECT_EQ(standin::CountCalls("TQSGetTSInfo"), 2);
}

TEST_F(TradingTableTest, AnAccountWhoseRecordFailsIsSkippedAndNotTheEnd) {
  standin::FailCall("TQSGetTSAccount", 1);
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1: b2=2317.TW");
}

TEST_F(TradingTableTest, AnAccountWhoseHoldingsFailHoldsNothing) {
  standin::FailCall("TQSGetTSAccountHolding", 1);
  table.Reload("T1");
  EXPECT_EQ(Shape(), "T1: a1= b2=2317.TW");
}

TEST_F(TradingTableTest, FieldsOfFullWidthAreTheKeysAsTheyAre) {
  const std::string system(32, 's');
  const std::string account(32, 'c');
  standin::AnswerTradingSystems({tqtest::SystemInfo(system, "n")});
  standin::AnswerAccounts(system, {tqtest::AccountInfo(-2, account, std::string(900, 'd'))});
  table.Reload(system.c_str());
  ASSERT_NE(table.Find(system.c_str()), nullptr);
  const tq::CAccount* found =
      table.Find(system.c_str())->FindAccount(account.c_str(), static_cast<TqsAccType>(-2));
  ASSERT_NE(found, nullptr);
  EXPECT_STREQ(found->Id(), account.c_str());
  EXPECT_STREQ(found->ListId(), ("-2" + account).c_str());
  EXPECT_EQ(found->DisplayId().GetLength(), 768);
}

TEST_F(TradingTableTest, HoldingsAreTidiedWhenTheyAreRead) {
  standin::SetHoldings("T1", "a", 1, " 2330.TW ,, 2330.TW,\r\n");
  table.Reload("T1");
  EXPECT_STREQ(table.Systems()[0].accounts[0].holdings, "2330.TW,2330.TW");
}

TEST_F(TradingTableTest, RefetchingAsksForThatAccountAlone) {
  table.Reload("T1");
  standin::SetHoldings("T1", "a", 1, "2454.TW");
  standin::SetHoldings("T1", "b", 2, "1101.TW");
  standin::ClearCalls();
  table.RefetchHoldings("T1", "a", static_cast<TqsAccType>(1));
  EXPECT_EQ(Shape(), "T1: a1=2454.TW b2=2317.TW");
  ASSERT_EQ(standin::Calls().size(), 1u);
  EXPECT_EQ(standin::Calls()[0].operation, "TQSGetTSAccountHolding");
  EXPECT_EQ(standin::Calls()[0].arguments, "T1,a,1");
  EXPECT_NE(File().find("SymbolList = '2454.TW'"), std::string::npos);
}

TEST_F(TradingTableTest, AnAccountThatSoldEverythingHoldsNothing) {
  table.Reload("T1");
  standin::SetHoldings("T1", "a", 1, "");
  table.RefetchHoldings("T1", "a", static_cast<TqsAccType>(1));
  EXPECT_EQ(Shape(), "T1: a1= b2=2317.TW");
}

TEST_F(TradingTableTest, ARefetchThatFailsKeepsWhatWasThere) {
  table.Reload("T1");
  const std::string file = File();
  directory.Write("TSList.xml", "untouched");
  standin::FailCall("TQSGetTSAccountHolding", 1);
  table.RefetchHoldings("T1", "a", static_cast<TqsAccType>(1));
  EXPECT_EQ(Shape(), "T1: a1=2330.TW,2317.TW b2=2317.TW");
  EXPECT_EQ(File(), "untouched");
}

TEST_F(TradingTableTest, UnknownAccountsAreNotAskedFor) {
  table.Reload("T1");
  standin::ClearCalls();
  table.RefetchHoldings("T1", "a", static_cast<TqsAccType>(2));
  table.RefetchHoldings("T1", "c", static_cast<TqsAccType>(1));
  table.RefetchHoldings("T2", "a", static_cast<TqsAccType>(1));
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(TradingTableTest, ThePathOfTheNextChangeCounts) {
  TempDir other;
  table.Reload("T1");
  table.SetPath(other.Joined("TSList.xml").c_str());
  EXPECT_FALSE(other.Exists("TSList.xml"));
  table.Reload("T1");
  EXPECT_EQ(other.Read("TSList.xml"), File());
}

TEST_F(TradingTableTest, WithoutAPathNothingIsWritten) {
  tq::TradingTable none{CString()};
  none.Reload("T1");
  EXPECT_NE(none.Find("T1"), nullptr);
  EXPECT_TRUE(directory.Names().empty());
}

} // namespace
