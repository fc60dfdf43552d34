// Lists from trading accounts: the start, logins, changes of holdings, strange proxies.
#include "tests/interface/TradingText.h"

namespace {

// --- The start ----------------------------------------------------------------------------------

TEST_F(TradingTextTest, AStartAddsTheListOfAllHoldingsOnceAndEmpty) {
  Start();
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
  manager.LoadTSList();
  manager.UpdateTQSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
  EXPECT_EQ(AllAsked("TQSGetTS"), "");
}

TEST_F(TradingTextTest, WithoutTradingListsNothingIsAskedToldOrWritten) {
  ASSERT_EQ(StartWithoutTables(), 1);
  ForgetCalls();
  CString symbols = "kept";
  manager.LoadTSList();
  manager.UpdateTSLogin("T1");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(manager.AddTSSymbolList("a", 6, "A", "2330.TW", 1), 0);
  manager.UpdateTSSymbolList("a", 6, "A", "2330.TW", 1);
  manager.GetTSAccHodling("T1", "9801", symbols);
  manager.GetTSSymbolLists("T1", kStocks, "9801", symbols);
  manager.GetTSSymbolLists("T1", kStocks, symbols);
  EXPECT_STREQ(symbols, "kept");
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(Notified(), "");
  EXPECT_EQ(standin::Calls().size(), 0U);
  EXPECT_FALSE(directory.Exists("TSList.xml"));
}

// --- A login ------------------------------------------------------------------------------------

TEST_F(TradingTextTest, ALoginAsksForTheSystemItsAccountsAndTheirHoldings) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(standin::CountCalls("TQSGetTSStatus"), 1);
  EXPECT_EQ(standin::CountCalls("TQSGetTSInfo"), 1) << "the first record is the one";
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccount"), 3);
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 3);
  EXPECT_NE(AllAsked("TQSGetTS").find("GetTSAccountHolding(T1,F01,2)"), std::string::npos);
}

TEST_F(TradingTextTest, ALoginIsTheWholeTableListsAndFile) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(TradingFile(), File(SystemT1()));
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingTextTest, AnotherSystemStandsBehindAndKeepsItsPlace) {
  Start();
  manager.UpdateTSLogin("T1");
  manager.UpdateTSLogin("T2");
  EXPECT_EQ(TradingFile(), File(SystemT1() + SystemT2()));
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(TradingFile(), File(SystemT1("1101.TW") + SystemT2()));
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "1101.TW,2317.TW,2454.TW,TXFL6.TF");
}

TEST_F(TradingTextTest, ASecondLoginDropsTheListOfAnAccountThatIsGone) {
  Start();
  manager.UpdateTSLogin("T1");
  OneAccount({1, "9802", "new shown", "2330.TW"});
  ForgetCalls();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/2330.TW|19802/new shown/2330.TW");
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
  EXPECT_EQ(TradingFile(),
            File(System("T1", Broker("甲"), Account("9802", "new shown", 1, "2330.TW"))));
}

TEST_F(TradingTextTest, ASystemWithoutAccountsEmptiesAllHoldings) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::AnswerAccounts("T1", {});
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
  EXPECT_EQ(TradingFile(), File(System("T1", Broker("甲"), "")));
}

TEST_F(TradingTextTest, AnUnavailableSystemLosesItsAccountListsAndIsStillTold) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetAvailable("T1", false);
  ForgetCalls();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(standin::CountCalls("TQSGetTSInfo"), 0);
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 0);
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
  EXPECT_EQ(Notified().substr(Notified().rfind('|') + 1), "4 TSSymbolList");
}

TEST_F(TradingTextTest, AnUnknownSystemIsToldAndChangesNoList) {
  Start();
  manager.UpdateTSLogin("T1");
  ForgetCalls();
  manager.UpdateTSLogin("T9");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "4 TSSymbolList");
}

TEST_F(TradingTextTest, AFailedInfoOrAccountIsSkipped) {
  Start();
  standin::FailCall("TQSGetTSInfo", 1);
  manager.UpdateTSLogin("T2");
  EXPECT_EQ(Symbols("177"), "1101.TW");
  standin::FailCall("TQSGetTSAccount", 2);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19801"), "2330.TW,2317.TW");
  EXPECT_EQ(Symbols("19802"), "(no list)");
  EXPECT_EQ(Symbols("2F01"), "TXFL6.TF");
}

TEST_F(TradingTextTest, TheFileHasItsValuesAsTheyAre) {
  OneAccount({3, "a<b", "it's & <this>", "2330.TW"});
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(TradingFile(),
            File(System("T1", Broker("甲"), Account("a<b", "it's & <this>", 3, "2330.TW"))));
}

TEST_F(TradingTextTest, TheFileHasUnknownSymbolsTheNewListDoesNot) {
  OneAccount({1, "A", "A-*", "2330.TW,NONE.TW,2317.TW"});
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("1A"), "2330.TW,2317.TW");
  EXPECT_EQ(TradingFile(),
            File(System("T1", Broker("甲"), Account("A", "A-*", 1, "2330.TW,NONE.TW,2317.TW"))));
}

TEST_F(TradingTextTest, AFileThatCannotBeOpenedHoldsNothingElseUp) {
  directory.MakeDirectory("TSList.xml");
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(TradingTextTest, AnAccountWithoutShownIdHasNoList) {
  OneAccount({1, "A", "", "2330.TW"});
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/2330.TW");
}

TEST_F(TradingTextTest, AnAccountWithoutHoldingsHasAnEmptyList) {
  OneAccount({1, "A", "A-*", ""});
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/|1A/A-*/");
  EXPECT_EQ(TradingFile(), File(System("T1", Broker("甲"), Account("A", "A-*", 1, ""))));
}

TEST_F(TradingTextTest, AccountsShownAlikeGetTheSuffix) {
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {{1, "A", "Same", "2330.TW"}, {1, "B", "same", "2317.TW"}};
  standin::SetMarket(market);
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(NameOf("1A"), "Same");
  EXPECT_EQ(NameOf("1B"), "same" + UpdateSuffix());
}

TEST_F(TradingTextTest, AllHoldingsAreNamedApartFromTheUsersLists) {
  StartWithUserLists("");
  ASSERT_EQ(manager.AddSymbolList("u", 1, AllHoldings().c_str(), "2330.TW", 1, 0), 1);
  ASSERT_EQ(manager.DeleteTSSymbolList("allmystocklists"), 1);
  manager.UpdateTSLogin("T2");
  EXPECT_EQ(NameOf("ALLMYSTOCKLISTS"), AllHoldings() + UpdateSuffix());
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "1101.TW");
}

// --- A change of holdings -----------------------------------------------------------------------

TEST_F(TradingTextTest, AChangeAsksForThatAccountAlone) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetHoldings("T1", "9801", 1, "1101.TW,2330.TW");
  ForgetCalls();
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(AllAsked("TQSGetTS"), "GetTSAccountHolding(T1,9801,1)");
  EXPECT_EQ(Notified(), "40 TSSymbolList|40 TSSymbolList|4 TSSymbolList");
  EXPECT_EQ(Symbols("19801"), "1101.TW,2330.TW");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "1101.TW,2330.TW,2317.TW,2454.TW,TXFL6.TF");
  EXPECT_EQ(TradingFile(), File(SystemT1("1101.TW,2330.TW")));
}

TEST_F(TradingTextTest, AChangeMakesTheAccountsListWhenItIsMissing) {
  Start();
  manager.UpdateTSLogin("T1");
  manager.DeleteTSSymbolList("19801");
  manager.DeleteTSSymbolList("ALLMYSTOCKLISTS");
  ForgetCalls();
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Notified(), "4 TSSymbolList") << "both were added";
  EXPECT_EQ(NameOf("19801"), "9801-*");
  EXPECT_EQ(NameOf("ALLMYSTOCKLISTS"), AllHoldings());
}

TEST_F(TradingTextTest, AChangeOfASystemWithoutLoginIsOnlyTold) {
  Start();
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(AllAsked("TQSGetTS"), "");
  EXPECT_EQ(Notified(), "4 TSSymbolList");
  EXPECT_FALSE(directory.Exists("TSList.xml"));
  manager.UpDataTSAccHodling("", "", kStocks);
  EXPECT_EQ(Notified(), "4 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingTextTest, AChangeToNothingEmptiesTheList) {
  Start();
  manager.UpdateTSLogin("T2");
  standin::SetHoldings("T2", "77", 1, "");
  manager.UpDataTSAccHodling("T2", "77", kStocks);
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/|177/77-*/");
  EXPECT_EQ(TradingFile(), File(System("T2", Broker("乙"), Account("77", "77-*", 1, ""))));
}

// --- A proxy that fails or answers strangely -----------------------------------------------------

TEST_F(TradingTextTest, OfTwoRecordsOfOneSystemTheFirstCounts) {
  TQS_TSINFO other = {};
  std::strcpy(other.id, "T2");
  TQS_TSINFO first = {};
  std::strcpy(first.id, "T1");
  std::strcpy(first.name, "first");
  TQS_TSINFO second = first;
  std::strcpy(second.name, "second");
  standin::AnswerTradingSystems({other, first, second});
  OneAccount({1, "A", "A-*", "2330.TW"});
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(TradingFile(), File(System("T1", "first", Account("A", "A-*", 1, "2330.TW"))));
  EXPECT_EQ(standin::CountCalls("TQSGetTSInfo"), 2);
}

TEST_F(TradingTextTest, ASystemThatIsNotListedAnyMoreLosesItsAccountLists) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::AnswerTradingSystems({});
  ForgetCalls();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
  EXPECT_EQ(TradingFile().find("<Account"), std::string::npos);
  EXPECT_EQ(standin::CountCalls("TQSGetTSAccountHolding"), 0);
}

TEST_F(TradingTextTest, AnUnknownSystemsLoginWritesTheFileToo) {
  Start();
  manager.UpdateTSLogin("T9");
  EXPECT_EQ(TradingFile(), File(""));
}

TEST_F(TradingTextTest, AnAccountWhoseHoldingsFailHoldsNothing) {
  Start();
  standin::FailCall("TQSGetTSAccountHolding", 1);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19801"), "");
  EXPECT_EQ(Symbols("19802"), "2317.TW,2454.TW");
  EXPECT_EQ(TradingFile(), File(SystemT1("")));
}

} // namespace
