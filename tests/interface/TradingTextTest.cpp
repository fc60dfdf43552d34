// Logins and changes of holdings step by step: what the proxy is asked, what the terminal is told,
// the lists, the file to the byte.
#include <cstring>

#include "tests/interface/TradingTest.h"

namespace {

class TradingTextTest : public TradingTest {
protected:
  static std::string Declaration() {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n";
  }
  static std::string File(const std::string& systems) {
    return Declaration() + "<TSList>\n" + systems + "</TSList>";
  }
  static std::string System(const char* id, const std::string& name, const std::string& accounts) {
    return std::string("\t<TS ID = '") + id + "' Name = '" + name + "' >\n" + accounts +
           "\t</TS>\n";
  }
  static std::string Account(const char* id, const char* shown, int type, const char* symbols) {
    return std::string("\t\t<Account ID = '") + id + "' DispID = '" + shown + "' TqsAccType = '" +
           std::to_string(type) + "' SymbolList = '" + symbols + "' />\n";
  }
  static std::string SystemT1(const char* holdings9801 = "2330.TW,2317.TW") {
    return System("T1", Broker("甲"),
                  Account("9801", "9801-*", 1, holdings9801) +
                      Account("9802", "9802-*", 1, "2317.TW,2454.TW") +
                      Account("F01", "F01-*", 2, "TXFL6.TF"));
  }
  static std::string SystemT2() {
    return System("T2", Broker("乙"), Account("77", "77-*", 1, "1101.TW"));
  }
  static std::string AllAsked(const char* prefix) {
    std::string all;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation.rfind(prefix, 0) == 0)
        all += (all.empty() ? "" : "|") + call.operation.substr(3) + "(" + call.arguments + ")";
    }
    return all;
  }
  // With one account for T1.
  static void OneAccount(standin::TradingAccount account) {
    standin::Market market = Market();
    market.tradingSystems[0].accounts = {std::move(account)};
    standin::SetMarket(market);
  }
};

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
