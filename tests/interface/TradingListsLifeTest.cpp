// Trading lists over the manager's life: starts, other directories, the switch, lists by system.
#include "tests/interface/TradingTest.h"

namespace {

class TradingListsLifeTest : public TradingTest {};

TEST_F(TradingListsLifeTest, AStartAddsAllHoldingsEmpty) {
  Start();
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
  EXPECT_FALSE(directory.Exists("TSList.xml"));
}

TEST_F(TradingListsLifeTest, AllHoldingsAreAddedOnce) {
  Start();
  EXPECT_EQ(manager.LoadTSList(), 0);
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.LoadTSList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
}

TEST_F(TradingListsLifeTest, AllHoldingsMakeWayForAUserListOfThatName) {
  const std::string name = IsTraditionChinese() ? "全部庫存股" : "全部库存股";
  StartWithUserLists("<List ID='u' Name='" + name + "' Value='2330.TW'/>");
  EXPECT_EQ(NameOf("ALLMYSTOCKLISTS"), AllHoldings() + UpdateSuffix());
}

TEST_F(TradingListsLifeTest, TheNameIsThatOfTheInterfaceLanguage) {
  standin::SetTraditional(!IsTraditionChinese());
  Start();
  EXPECT_EQ(NameOf("ALLMYSTOCKLISTS"), AllHoldings());
}

TEST_F(TradingListsLifeTest, UpdatingTheListsBringsAllHoldingsBack) {
  Start();
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.UpdateTQSymbolList(), 1);
  EXPECT_EQ(Shape(), "ALLMYSTOCKLISTS/" + AllHoldings() + "/");
}

TEST_F(TradingListsLifeTest, ReloadingTheListsLeavesTradingListsAlone) {
  Start();
  manager.UpdateTSLogin("T1");
  manager.ReLoadList(directory.Path().c_str());
  manager.UpdateTQSymbolList();
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  manager.ClearTSSymbolList();
  manager.ReLoadList(directory.Path().c_str());
  EXPECT_EQ(Shape(), "");
}

TEST_F(TradingListsLifeTest, TheFileGoesOverToTheOtherDirectory) {
  Start();
  manager.UpdateTSLogin("T1");
  const std::string file = TradingFile();
  TempDir other;
  manager.ReLoadList(other.Path().c_str());
  EXPECT_FALSE(other.Exists("TSList.xml"));
  manager.UpdateTSLogin("T2");
  EXPECT_EQ(TradingFile(), file);
  EXPECT_NE(other.Read("TSList.xml").find("'T1'"), std::string::npos);
  EXPECT_NE(other.Read("TSList.xml").find("'T2'"), std::string::npos);
}

// Symptom: a second start dropped the table and the lists, and later changes of holdings were never
// shown.
TEST_F(TradingListsLifeTest, AnotherStartKeepsTableAndLists) {
  Start();
  manager.UpdateTSLogin("T1");
  const std::string file = TradingFile();
  TempDir other;
  ASSERT_EQ(manager.Init(other.Path().c_str(), 0, 0, 0, nullptr, 0, 1), 1);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_FALSE(other.Exists("TSList.xml"));
  standin::SetHoldings("T1", "F01", 2, "2454.TW");
  manager.UpDataTSAccHodling("T1", "F01", kFutures);
  EXPECT_EQ(Symbols("2F01"), "2454.TW");
  EXPECT_EQ(Symbols("ALLMYSTOCKLISTS"), "2330.TW,2317.TW,2454.TW");
  EXPECT_EQ(TradingFile(), file);
  EXPECT_NE(other.Read("TSList.xml").find("'9801'"), std::string::npos);
}

TEST_F(TradingListsLifeTest, AStartWithoutTradingListsLeavesWhatIsThereAsItIs) {
  Start();
  manager.UpdateTSLogin("T1");
  const std::string file = TradingFile();
  ASSERT_EQ(StartWithoutTables(), 1);
  ForgetCalls();
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  manager.UpdateTSLogin("T1");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(manager.LoadTSList(), 0);
  EXPECT_EQ(manager.AddTSSymbolList("x", 6, "X", "2330.TW", 1), 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("19801", 6, "X", "2330.TW", 1), 0);
  EXPECT_EQ(manager.DeleteTSSymbolList("19801"), 0);
  manager.ClearTSSymbolList();
  CString symbols = "(untouched)";
  EXPECT_EQ(manager.GetTSAccHodling("T1", "9801", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kStocks, "9801", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kStocks, symbols), 0);
  EXPECT_STREQ(symbols, "(untouched)");
  EXPECT_TRUE(standin::Calls().empty());
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_EQ(TradingFile(), file);
}

// When they are wanted again the table is as before, so the next change of holdings is shown.
TEST_F(TradingListsLifeTest, AThirdStartThatWantsTradingListsAgainHasThem) {
  Start();
  manager.UpdateTSLogin("T1");
  ASSERT_EQ(StartWithoutTables(), 1);
  TempDir third;
  ASSERT_EQ(manager.Init(third.Path().c_str(), 0, 0, 0, nullptr, 0, 1), 1);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Symbols("19801"), "1101.TW");
  EXPECT_NE(third.Read("TSList.xml").find("'1101.TW'"), std::string::npos);
}

TEST_F(TradingListsLifeTest, AStartThatFailsAtTheTablesKeepsTableAndLists) {
  Start();
  manager.UpdateTSLogin("T1");
  const std::string file = TradingFile();
  TempDir other;
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(manager.Init(other.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 0);
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  standin::SetHoldings("T1", "9801", 1, "1101.TW");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  EXPECT_EQ(Symbols("19801"), "1101.TW");
  EXPECT_EQ(TradingFile(), file);
  EXPECT_TRUE(other.Exists("TSList.xml"));
}

TEST_F(TradingListsLifeTest, AFirstStartThatFailsAtTheTablesTakesLoginsAllTheSame) {
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 0);
  EXPECT_EQ(Shape(), "");
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
}

TEST_F(TradingListsLifeTest, WithoutADataDirectoryThereIsNoFile) {
  ASSERT_EQ(manager.Init("", 0, 0, 0, nullptr, 0, 1), 1);
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_TRUE(directory.Names().empty());
}

TEST_F(TradingListsLifeTest, AFileThatCannotBeWrittenIsPassedOverInSilence) {
  directory.MakeDirectory("TSList.xml");
  Start();
  manager.UpdateTSLogin("T1");
  EXPECT_EQ(Shape(), AfterLoginOfT1());
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(TradingListsLifeTest, WhenNotWantedNothingIsDoneAndNobodyAsked) {
  ASSERT_EQ(StartWithoutTables(), 1);
  ForgetCalls();
  CString symbols = "(untouched)";
  EXPECT_EQ(manager.LoadTSList(), 0);
  manager.UpdateTSLogin("T1");
  manager.UpDataTSAccHodling("T1", "9801", kStocks);
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(manager.AddTSSymbolList("x", 6, "X", "2330.TW", 1), 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("x", 6, "X", "2330.TW", 1), 0);
  EXPECT_EQ(manager.DeleteTSSymbolList("x"), 0);
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.GetTSAccHodling("T1", "9801", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kStocks, "9801", symbols), 0);
  EXPECT_EQ(manager.GetTSSymbolLists("T1", kStocks, symbols), 0);
  EXPECT_STREQ(symbols, "(untouched)");
  EXPECT_TRUE(standin::Calls().empty());
  EXPECT_EQ(Notified(), "");
  EXPECT_EQ(manager.GetSymbolListCount(6), 0);
  EXPECT_FALSE(directory.Exists("TSList.xml"));
}

TEST_F(TradingListsLifeTest, BeforeTheStartNothingIsDone) {
  manager.UpdateTSLogin("T1");
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(manager.LoadTSList(), 0);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(TradingListsLifeTest, ListsBySystemTakeThePlaceOfAllOthers) {
  Start();
  manager.UpdateTSLogin("T2");
  manager.UpdateTSLogin("T1");
  ForgetCalls();
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "T2/" + Broker("乙") + "/1101.TW|T1/" + Broker("甲") +
                         "/2330.TW,2317.TW,2454.TW,TXFL6.TF");
  EXPECT_EQ(Notified(), "");
}

TEST_F(TradingListsLifeTest, SystemsWithoutHoldingsGetNoListBySystem) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::SetHoldings("T2", "77", 1, "");
  manager.UpdateTSLogin("T2");
  standin::SetAvailable("T1", false);
  manager.UpdateTSLogin("T1");
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "");
}

TEST_F(TradingListsLifeTest, WithAnEmptyTableListsBySystemAreNone) {
  Start();
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "");
}

TEST_F(TradingListsLifeTest, OfTwoSystemsWhoseIdsDifferInCaseTheLastHasTheList) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::Market market = Market();
  market.tradingSystems.erase(market.tradingSystems.begin());
  market.tradingSystems[0].id = "t1";
  standin::SetMarket(market);
  manager.UpdateTSLogin("t1");
  manager.BuildTSListToSymbolList();
  EXPECT_EQ(Shape(), "t1/" + Broker("乙") + "/1101.TW");
}

TEST_F(TradingListsLifeTest, ChangedSymbolsOfAnExchangeReachTradingLists) {
  Start();
  manager.UpdateTSLogin("T1");
  standin::ClearCalls();
  char record[19] = "2454.TW";
  manager.UpdateExchSymbolChange(1, record, 1, ExchSymbolsAdded);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 2); // all holdings and 9802
}

} // namespace
