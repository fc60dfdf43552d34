// Changes of an account's holdings, and queries of holdings.
#include "tests/interface/TradingTest.h"

namespace {

class TradingListsHoldingsTest : public TradingTest {
protected:
  void StartAndLogIn() {
    Start();
    manager.UpdateTSLogin("T1");
    ForgetCalls();
  }
  std::string Holding(const char* system, const char* account) {
    CString symbols = "(untouched)";
    const int found = manager.GetTSAccHodling(system, account, symbols);
    return std::to_string(found) + " " + symbols.GetString();
  }
  std::string Lists(const char* system, TqsAccType type, const char* account) {
    CString symbols = "(untouched)";
    const int found = manager.GetTSSymbolLists(system, type, account, symbols);
    return std::to_string(found) + " " + symbols.GetString();
  }
  std::string Lists(const char* system, TqsAccType type) {
    CString symbols = "(untouched)";
    const int found = manager.GetTSSymbolLists(system, type, symbols);
    return std::to_string(found) + " " + symbols.GetString();
  }
};

TEST_F(TradingListsHoldingsTest, TheAccountsListAndAllHoldingsFollow) {
  StartAndLogIn();
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() +
                         "/1101.TW,2317.TW,2454.TW,TXFL6.TF|19801/9801-*/1101.TW|"
                         "19802/9802-*/2317.TW,2454.TW|2F01/F01-*/TXFL6.TF");
  EXPECT_EQ(Notified(), "40 TSSymbolList|40 TSSymbolList|4 TSSymbolList");
  EXPECT_NE(TradingFile().find("'9801-*' TqsAccType = '1' SymbolList = '1101.TW'"),
            std::string::npos);
}

TEST_F(TradingListsHoldingsTest, OnlyThatAccountIsAskedFor) {
  StartAndLogIn();
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 1);
  EXPECT_EQ(standin::CountCalls("TQSGetTSCount"), 0);
  EXPECT_EQ(standin::CountCalls("TQSGetTSStatus"), 0);
}

TEST_F(TradingListsHoldingsTest, UnchangedHoldingsAskForNoSymbols) {
  StartAndLogIn();
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
}

TEST_F(TradingListsHoldingsTest, AnAccountThatSoldEverythingHasAnEmptyList) {
  StartAndLogIn();
  standin::SetHoldings("T1", "2F01", 2, "");
  standin::SetHoldings("T1", "F01", 2, "");
  manager.UpDataTSAccHodling("T1", "F01", kFutures);
  EXPECT_EQ(Symbols("2F01"), "");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,2317.TW,2454.TW");
}

TEST_F(TradingListsHoldingsTest, AListThatWasDeletedIsAddedAgain) {
  StartAndLogIn();
  ASSERT_EQ(manager.DeleteTSSymbolList("19801"), 1);
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Symbols("19801"), "2330.TW,2317.TW");
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingListsHoldingsTest, AnUnknownAccountUpdatesAllHoldingsAlone) {
  StartAndLogIn();
  manager.UpDataTSAccHodling("T1", "none", kStocks);
  manager.UpDataTSAccHodling("T1", "9801", kFutures);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 0);
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList|40 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingListsHoldingsTest, AnEmptyAccountIdUpdatesAllHoldingsAlone) {
  StartAndLogIn();
  ASSERT_EQ(manager.DeleteTSSymbolList("ALLMYSTOCKLISTS"), 1);
  manager.UpDataTSAccHodling("T1", "", kStocks);
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,2317.TW,2454.TW,TXFL6.TF");
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 0);
  EXPECT_EQ(Notified(), "4 TSSymbolList");
}

TEST_F(TradingListsHoldingsTest, AnUnknownSystemOnlyTellsTheTerminal) {
  StartAndLogIn();
  const std::string file = TradingFile();
  directory.Write("TSList.xml", "untouched");
  manager.UpDataTSAccHodling("T2", "77", kStocks); // not logged in to
  manager.UpDataTSAccHodling("", "77", kStocks);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "4 TSSymbolList|4 TSSymbolList");
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 0);
  EXPECT_EQ(TradingFile(), "untouched");
}

TEST_F(TradingListsHoldingsTest, HoldingsThatCannotBeReadStay) {
  StartAndLogIn();
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  standin::FailCall("TQSGetTSAccountHolding", 1);
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "40 TSSymbolList|40 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingListsHoldingsTest, TheNameOfAnExistingListStays) {
  StartAndLogIn();
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("19801", &list, 6), 1);
  list->SetName("renamed");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(NameOf("19801"), "renamed");
}

TEST_F(TradingListsHoldingsTest, AnAccountsHoldingsAreJoinedAsTheServiceHasThem) {
  Start();
  standin::SetHoldings("T1", "9801", 1, "2330.TW, 2330.TW,,2317.TW");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Holding("T1", "9801"), "1 2330.TW,2330.TW,2317.TW");
  EXPECT_EQ(Holding("T1", "F01"), "1 TXFL6.TF");
}

TEST_F(TradingListsHoldingsTest, HoldingsOfWhatIsNotInTheTableStayUntouched) {
  StartAndLogIn();
  EXPECT_EQ(Holding("T2", "77"), "0 (untouched)");
  EXPECT_EQ(Holding("T1", "77"), "0 (untouched)");
  EXPECT_EQ(Holding("", ""), "0 (untouched)");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(TradingListsHoldingsTest, TheListOfAnAccountNeedsIdAndType) {
  Start();
  standin::SetHoldings("T1", "9801", 1, "2330.TW,2330.TW,2317.TW");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Lists("T1", kStocks, "9801"), "1 2330.TW,2317.TW");
  EXPECT_EQ(Lists("T1", kFutures, "F01"), "1 TXFL6.TF");
  EXPECT_EQ(Lists("T1", kFutures, "9801"), "0 (untouched)");
  EXPECT_EQ(Lists("T1", kStocks, "none"), "0 (untouched)");
  EXPECT_EQ(Lists("T2", kStocks, "77"), "0 (untouched)");
  EXPECT_EQ(Lists("", kStocks, "9801"), "0 (untouched)");
}

TEST_F(TradingListsHoldingsTest, TheFirstAccountThatMatchesCounts) {
  Start();
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {
      {2, "1", "a", "TXFL6.TF"}, {1, "1", "b", "2330.TW"}, {1, "2", "c", "2317.TW"}};
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Lists("T1", kStocks, "1"), "1 2330.TW");
  EXPECT_EQ(Holding("T1", "1"), "1 TXFL6.TF"); // by the id alone
}

TEST_F(TradingListsHoldingsTest, TheListOfATypeMergesItsAccounts) {
  StartAndLogIn();
  EXPECT_EQ(Lists("T1", kStocks), "1 2330.TW,2317.TW,2454.TW");
  EXPECT_EQ(Lists("T1", kFutures), "1 TXFL6.TF");
  // Symptom: a type without accounts returned the text of the previous query.
  EXPECT_EQ(Lists("T1", static_cast<TqsAccType>(3)), "1 ");
  EXPECT_EQ(Lists("T2", kStocks), "0 (untouched)");
  EXPECT_EQ(Lists("", kStocks), "0 (untouched)");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(TradingListsHoldingsTest, ASystemThatLostItsAccountsHoldsNothingOfAnyType) {
  StartAndLogIn();
  standin::SetAvailable("T1", false);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Lists("T1", kStocks), "1 ");
  EXPECT_EQ(Lists("T1", kStocks, "9801"), "0 (untouched)");
}

} // namespace
