// Lists from trading accounts: adding, updating and deleting them, and queries of holdings.
#include "tests/interface/TradingText.h"

namespace {

// --- Lists of kind 6 ----------------------------------------------------------------------------

TEST_F(TradingTextTest, AnAddedListHasTheKnownSymbolsInOrder) {
  Start();
  EXPECT_NE(manager.AddTSSymbolList("a", 6, "A", ",2330.TW,,NONE.TW,2317.TW,", 0), 0);
  EXPECT_EQ(Symbols("A"), "2330.TW,2317.TW");
  EXPECT_EQ(Notified(), "");
}

TEST_F(TradingTextTest, AnAddedListWhoseSymbolsAreAllUnknownIsEmptyAndThere) {
  Start();
  EXPECT_NE(manager.AddTSSymbolList("a", 6, "A", "NONE.TW,Title:", 0), 0);
  EXPECT_EQ(Symbols("a"), "");
}

TEST_F(TradingTextTest, AnUpdateOfAMissingListAddsItUnderTheChecksOfItsKind) {
  StartWithUserLists("<List ID='u' Name='Mine' Value='2330.TW'/>");
  manager.UpdateTSSymbolList("u", 1, "Other", "2330.TW", 1);
  EXPECT_EQ(Symbols("u"), "(no list)");
  manager.UpdateTSSymbolList("v", 1, "Mine", "2330.TW", 1);
  EXPECT_EQ(NameOf("v"), "Mine" + UpdateSuffix());
  EXPECT_EQ(Notified(), "");
}

TEST_F(TradingTextTest, AnAddIsRefusedForNameSymbolsAndId) {
  Start();
  EXPECT_EQ(manager.AddTSSymbolList("a", 6, "", "2330.TW", 1), 0);
  EXPECT_EQ(manager.AddTSSymbolList("a", 6, "A", "", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("a", 6, "A", "", 1), 0);
  EXPECT_EQ(manager.AddTSSymbolList("A", 6, "B", "2330.TW", 1), 0) << "the id is there";
  EXPECT_EQ(manager.GetSymbolListCount(6), 2);
}

TEST_F(TradingTextTest, AnEmptyIdBecomesANewOne) {
  Start();
  EXPECT_NE(manager.AddTSSymbolList("", 6, "A", "2330.TW", 0), 0);
  CString id;
  CString name;
  CString symbols;
  ASSERT_EQ(manager.GetSymbolListInfo(1, id, name, symbols, 6), 1);
  EXPECT_EQ(id.GetLength(), 36);
  EXPECT_STREQ(name, "A");
}

TEST_F(TradingTextTest, ATakenNameGetsTheSuffixUpToFiveTimes) {
  Start();
  std::string name = "Name";
  for (int i = 0; i <= 5; ++i) {
    const std::string id = "id" + std::to_string(i);
    ASSERT_NE(manager.AddTSSymbolList(id.c_str(), 6, i % 2 == 0 ? "Name" : "NAME", "2330.TW", 0),
              0);
    EXPECT_EQ(NameOf(id.c_str()), (i % 2 == 0 ? "Name" : "NAME") + name.substr(4));
    name += UpdateSuffix();
  }
  EXPECT_EQ(manager.AddTSSymbolList("id6", 6, "Name", "2330.TW", 0), 0);
  EXPECT_EQ(manager.GetSymbolListCount(6), 7);
}

TEST_F(TradingTextTest, KindOneIsCheckedAgainstTheUsersLists) {
  StartWithUserLists("<List ID='u' Name='Mine' Value='2330.TW'/>");
  EXPECT_EQ(manager.AddTSSymbolList("U", 1, "Other", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("U", 6, "Mine", "2330.TW", 0), 0);
  EXPECT_EQ(NameOf("U"), "Mine");
  EXPECT_NE(manager.AddTSSymbolList("V", 1, "mine", "2330.TW", 0), 0);
  EXPECT_EQ(NameOf("V"), "mine" + UpdateSuffix());
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
}

TEST_F(TradingTextTest, AnUpdateChangesSymbolsNotTheName) {
  Start();
  manager.AddTSSymbolList("a", 6, "A", "2330.TW", 0);
  ForgetCalls();
  manager.UpdateTSSymbolList("A", 6, "B", "2317.TW", 0);
  EXPECT_EQ(Symbols("a"), "2317.TW");
  EXPECT_EQ(NameOf("a"), "A");
  EXPECT_EQ(Notified(), "40 TSSymbolList");
  manager.UpdateTSSymbolList("a", 6, "B", "", 0);
  EXPECT_EQ(Symbols("a"), "") << "only an add minds empty symbols";
  manager.UpdateTSSymbolList("b", 6, "B", "", 0);
  EXPECT_EQ(Symbols("b"), "(no list)");
  EXPECT_EQ(Notified(), "40 TSSymbolList|40 TSSymbolList");
}

TEST_F(TradingTextTest, DeletingAndClearing) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(manager.DeleteTSSymbolList("2f01"), 1);
  EXPECT_EQ(manager.DeleteTSSymbolList("2F01"), 0);
  EXPECT_EQ(manager.GetSymbolListCount(6), 3);
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(6), 0);
}

TEST_F(TradingTextTest, TheTableAsOneListForEachSystem) {
  Start();
  manager.UpdateTSLogin("T2");
  manager.UpdateTSLogin("T1");
  ForgetCalls();
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "T2/" + Broker("乙") + "/1101.TW|T1/" + Broker("甲") +
                         "/2330.TW,2317.TW,2454.TW,TXFL6.TF");
  EXPECT_EQ(AllAsked("TQSGetTS"), "");
}

TEST_F(TradingTextTest, ASystemThatHoldsNothingHasNoListOfItsOwn) {
  OneAccount({1, "A", "A-*", ""});
  Start();
  manager.UpdateTSLogin("T1");
  manager.UpdateTSLogin("T2");
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "T2/" + Broker("乙") + "/1101.TW");
}

// --- Queries of holdings ------------------------------------------------------------------------

TEST_F(TradingTextTest, HoldingsOfAnAccountAndOfAType) {
  Start();
  manager.UpdateTSLogin("T1");
  CString symbols = "old";
  EXPECT_EQ(manager.GetTSAccHodling("T1", "9802", symbols), 1);
  EXPECT_STREQ(symbols, "2317.TW,2454.TW");
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kFutures, "F01", symbols), 1);
  EXPECT_STREQ(symbols, "TXFL6.TF");
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kStocks, symbols), 1);
  EXPECT_STREQ(symbols, "2330.TW,2317.TW,2454.TW");
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kFutures, symbols), 1);
  EXPECT_STREQ(symbols, "TXFL6.TF");
}

TEST_F(TradingTextTest, RepeatedHoldingsAreMergedWhereTheTextSaysMerged) {
  OneAccount({1, "A", "A-*", "2330.TW,2317.TW,2330.TW"});
  Start();
  manager.UpdateTSLogin("T1");
  CString symbols;
  manager.GetTSAccHodling("T1", "A", symbols);
  EXPECT_STREQ(symbols, "2330.TW,2317.TW,2330.TW");
  manager.GetTSSymbolLists("T1", kStocks, "A", symbols);
  EXPECT_STREQ(symbols, "2330.TW,2317.TW");
  manager.GetTSSymbolLists("T1", kStocks, symbols);
  EXPECT_STREQ(symbols, "2330.TW,2317.TW");
}

TEST_F(TradingTextTest, TypeAndIdOfAnAccountMustBothMatch) {
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {{1, "A", "A1", "2330.TW"}, {2, "A", "A2", "TXFL6.TF"}};
  standin::SetMarket(market);
  Start();
  manager.UpdateTSLogin("T1");
  CString symbols = "kept";
  EXPECT_EQ(manager.GetTSSymbolLists("T1", static_cast<TqsAccType>(3), "A", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("", kStocks, "A", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("T2", kStocks, "A", symbols), 0);
  EXPECT_STREQ(symbols, "kept");
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kFutures, "A", symbols), 1);
  EXPECT_STREQ(symbols, "TXFL6.TF");
  EXPECT_EQ(Shape(),
            "ALLMYSTOCKLISTS/" + AllHoldings() + "/2330.TW,TXFL6.TF|1A/A1/2330.TW|2A/A2/TXFL6.TF");
  EXPECT_STRNE(symbols, "kept");
}

TEST_F(TradingTextTest, AChangeGoesToTheAccountOfThatTypeAndId) {
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {{1, "A", "A1", "2330.TW"}, {2, "A", "A2", "TXFL6.TF"}};
  standin::SetMarket(market);
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetHoldings("T1", "A", 1, "1101.TW");
  standin::SetHoldings("T1", "A", 2, "MXFL6.TF");
  manager.UpDataTSAccHodling("T1", "A", kFutures);
  EXPECT_EQ(Symbols("1A"), "2330.TW");
  EXPECT_EQ(Symbols("2A"), "MXFL6.TF");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,MXFL6.TF");
}

} // namespace
