// A login makes the account lists of the trading system and the list of all holdings.
#include "tests/interface/TradingTest.h"

namespace {

class TradingListsLoginTest : public TradingTest {};

TEST_F(TradingListsLoginTest, ALoginMakesAListForEachAccountAndFillsAllHoldings) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
}

TEST_F(TradingListsLoginTest, TheTerminalIsToldOfTheListThatWasThereAndOfTheLogin) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingListsLoginTest, ASymbolInTwoAccountsStandsOnceAtItsFirstPosition) {
  Start();
  standin::SetHoldings("T1", "9801", 1, "2317.TW,2330.TW");
  standin::SetHoldings("T1", "9802", 1, "2330.TW,2454.TW,2317.TW");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2317.TW,2330.TW,2454.TW,TXFL6.TF");
  EXPECT_EQ(manager.GetTQSymbolCount("ALLMYSTOCKLISTS", 6), 4);
}

TEST_F(TradingListsLoginTest, TheFileShowsTheTable) {
  Start();
  EXPECT_FALSE(directory.Exists("TSList.xml"));
  manager.UpdateTSLogin("T1");
  const std::string language = IsTraditionChinese() ? "big5" : "gb2312";
  EXPECT_EQ(TradingFile(),
            "<?xml version='1.0' encoding='" + language +
                "' ?>\n<TSList>\n\t<TS ID = 'T1' Name = '" + Broker("甲") +
                "' >\n"
                "\t\t<Account ID = '9801' DispID = '9801-*' TqsAccType = '1' SymbolList = "
                "'2330.TW,2317.TW' />\n"
                "\t\t<Account ID = '9802' DispID = '9802-*' TqsAccType = '1' SymbolList = "
                "'2317.TW,2454.TW' />\n"
                "\t\t<Account ID = 'F01' DispID = 'F01-*' TqsAccType = '2' SymbolList = "
                "'TXFL6.TF' />\n"
                "\t</TS>\n</TSList>");
}

TEST_F(TradingListsLoginTest, AllHoldingsAreThoseOfTheSystemUpdatedLast) {
  Start();
  manager.UpdateTSLogin("T1");
  manager.UpdateTSLogin("T2");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "1101.TW");
  EXPECT_EQ(Symbols("177"), "1101.TW");
  EXPECT_EQ(Symbols("19801"), "2330.TW,2317.TW");
}

TEST_F(TradingListsLoginTest, ASecondLoginRebuildsTheAccountLists) {
  Start();
  manager.UpdateTSLogin("T1");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
}

TEST_F(TradingListsLoginTest, AccountsThatAreGoneLoseTheirLists) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {{1, "9802", "another", "2330.TW"}};
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/2330.TW|19802/another/2330.TW");
}

TEST_F(TradingListsLoginTest, WithoutAccountsAllHoldingsBecomeEmptyAndStay) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::Market market = Market();
  market.tradingSystems[0].accounts.clear();
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
}

TEST_F(TradingListsLoginTest, AnUnavailableSystemLosesItsAccountLists) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetAvailable("T1", false);
  ForgetCalls();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
  EXPECT_EQ(Notified(), "40 TSSymbolList|4 TSSymbolList");
  EXPECT_EQ(standin::CountCalls("TQSGetTSCount"), 0);
  EXPECT_NE(TradingFile().find("\t<TS ID = 'T1' Name = '' >\n\t</TS>\n"), std::string::npos);
}

TEST_F(TradingListsLoginTest, ASystemThatIsNotFoundLosesItsAccountLists) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::FailAlways("TQSGetTSInfo");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
}

TEST_F(TradingListsLoginTest, AfterALogOutTheNextLoginIsWhole) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetAvailable("T1", false);
  manager.UpdateTSLogin("T1");
  standin::SetAvailable("T1", true);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(TradingFile().find("ID = 'T1'"), TradingFile().rfind("<TS ID = 'T1'") + 4);
}

TEST_F(TradingListsLoginTest, AnUnknownSystemChangesNoListButTheTerminalIsTold) {
  Start();
  manager.UpdateTSLogin("T1");
  ForgetCalls();
  manager.UpdateTSLogin("none");
  manager.UpdateTSLogin("");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "4 TSSymbolList|4 TSSymbolList");
}

TEST_F(TradingListsLoginTest, AnAccountWithoutHoldingsHasAnEmptyList) {
  Start();
  standin::SetHoldings("T1", "9801", 1, "");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19801"), "");
  EXPECT_EQ(NameOf("19801"), "9801-*");
}

TEST_F(TradingListsLoginTest, HoldingsThatTheServiceDoesNotKnowHaveNoRow) {
  Start();
  standin::SetHoldings("T1", "9801", 1, "GONE.TW,2330.TW");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19801"), "2330.TW");
  CString rows;
  EXPECT_EQ(manager.GetSymoblIDList("ALLMYSTOCKLISTS", rows, 6), 1);
  EXPECT_STREQ(rows, "2330.TW,2317.TW,2454.TW,TXFL6.TF");
}

TEST_F(TradingListsLoginTest, EachListAsksTheServiceForItsSymbolsOnce) {
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 4);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfo"), 0);
  for (const char* id : {"ALLMYSTOCKLISTS", "19801", "19802", "2F01"})
    EXPECT_GT(manager.GetTQSymbolCount(id, 6), 0) << id;
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 4);
}

TEST_F(TradingListsLoginTest, AnAccountWhoseNameAnotherHasGetsTheSuffix) {
  Start();
  standin::Market market = Market();
  market.tradingSystems[0].accounts[1].displayId = "9801-*";
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(NameOf("19801"), "9801-*");
  EXPECT_EQ(NameOf("19802"), "9801-*" + UpdateSuffix());
}

TEST_F(TradingListsLoginTest, AnAccountWithoutADisplayIdHasNoList) {
  Start();
  standin::Market market = Market();
  market.tradingSystems[0].accounts[0].displayId = "";
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Symbols("19801"), "(no list)");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,2317.TW,2454.TW,TXFL6.TF");
}

TEST_F(TradingListsLoginTest, FieldsWithoutATerminatorAreReadToTheirWidth) {
  Start();
  TQS_TSINFO system = {};
  std::memset(system.id, 's', sizeof(system.id));
  std::memset(system.name, 'n', sizeof(system.name));
  TQS_ACCOUNTINFO account = {};
  account.type = static_cast<TqsAccType>(-1);
  std::memset(account.id, 'a', sizeof(account.id));
  std::memset(account.displayId, 'd', sizeof(account.displayId));
  const std::string id(32, 's');
  standin::AnswerTradingSystems({system});
  standin::AnswerAccounts(id, {account});
  manager.UpdateTSLogin(id.c_str());
  const std::string list = "-1" + std::string(32, 'a');
  EXPECT_EQ(NameOf(list.c_str()), std::string(64, 'd'));
  manager.UpdateTSLogin(id.c_str());
  EXPECT_EQ(manager.GetSymbolListCount(6), 2);
}

TEST_F(TradingListsLoginTest, ThousandsOfAccounts) {
  constexpr int kAccounts = 4'000;
  standin::Market market = Market();
  market.tradingSystems[0].accounts.clear();
  for (int i = 0; i < kAccounts; ++i) {
    const std::string id = std::to_string(100'000 + i);
    market.tradingSystems[0].accounts.push_back(
        {1, id, "account " + std::to_string(i % (kAccounts / 2)), "2330.TW"});
  }
  standin::SetMarket(market);
  standin::RecordCalls(false);
  Start();
  for (int login = 0; login < 2; ++login) {
    manager.UpdateTSLogin("T1");
    EXPECT_EQ(manager.GetSymbolListCount(6), kAccounts + 1);
    EXPECT_EQ(NameOf("1103999"), "account 1999" + UpdateSuffix());
    EXPECT_EQ(Symbols("1103999"), "2330.TW");
  }
}

// A list's id has at most 36 bytes. An account that needs more is in the table, the file and all
// holdings, but has no list.
TEST_F(TradingListsLoginTest, AnAccountWhoseListIdWouldBeTooLongHasNoList) {
  Start();
  const std::string longest(31, 'a');
  standin::Market market = Market();
  market.tradingSystems[0].accounts = {{123456, longest, "long", "2330.TW"},
                                       {12345, longest, "fits", "2317.TW"}};
  standin::SetMarket(market);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/2330.TW,2317.TW|12345" + longest +
                         "/fits/2317.TW");
  CString symbols;
  EXPECT_EQ(manager.GetTSAccHodling("T1", longest.c_str(), symbols), 1);
  EXPECT_STREQ(symbols, "2330.TW");
}

TEST_F(TradingListsLoginTest, AllHoldingsThatWereClearedAreAddedAgain) {
  Start();
  manager.ClearTSSymbolList();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(Notified(), "4 TSSymbolList");
}

} // namespace
