// Lists of kind 6, one by one.
#include "tests/interface/TradingTest.h"

namespace {

class TradingListsAddTest : public TradingTest {
protected:
  // A start without the list of all holdings.
  void StartEmpty() {
    Start();
    manager.ClearTSSymbolList();
    ForgetCalls();
  }
};

TEST_F(TradingListsAddTest, AListIsAddedWithIdNameAndSymbols) {
  StartEmpty();
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "2330.TW,2317.TW", 0), 0);
  EXPECT_EQ(Shape(), "x/X/2330.TW,2317.TW");
  EXPECT_EQ(manager.GetTQSymbolCount("x", 6), 2);
  EXPECT_EQ(Notified(), "");
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
}

TEST_F(TradingListsAddTest, AnEmptyNameIsRefused) {
  StartEmpty();
  EXPECT_EQ(manager.AddTSSymbolList("x", 6, "", "2330.TW", 1), 0);
  EXPECT_EQ(Shape(), "");
}

TEST_F(TradingListsAddTest, EmptySymbolsNeedLeave) {
  StartEmpty();
  EXPECT_EQ(manager.AddTSSymbolList("x", 6, "X", "", 0), 0);
  EXPECT_EQ(Shape(), "");
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "", 1), 0);
  EXPECT_EQ(Shape(), "x/X/");
  EXPECT_TRUE(standin::CountCalls("VLGetSymbolInfos") == 0);
}

TEST_F(TradingListsAddTest, OrderAndRepetitionsStayAndUnknownSymbolsGo) {
  StartEmpty();
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "GONE.TW,2317.TW,,2330.TW,2317.TW,a:b,", 0), 0);
  EXPECT_EQ(Shape(), "x/X/2317.TW,2330.TW,2317.TW");
  EXPECT_EQ(manager.GetTQSymbolCount("x", 6), 3);
}

TEST_F(TradingListsAddTest, SymbolsThatAreAllUnknownMakeAnEmptyList) {
  StartEmpty();
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "GONE.TW", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("y", 6, "Y", ",,", 0), 0);
  EXPECT_EQ(Shape(), "x/X/|y/Y/");
}

TEST_F(TradingListsAddTest, IdsAreKeptAsTheServiceWritesThem) {
  StartEmpty();
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "2330.tw", 0), 0);
  EXPECT_EQ(Shape(), "x/X/2330.TW");
}

TEST_F(TradingListsAddTest, AServiceThatFailsKnowsNoSymbol) {
  StartEmpty();
  standin::FailCall("VLGetSymbolInfos", 1);
  EXPECT_NE(manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0), 0);
  EXPECT_EQ(Shape(), "x/X/");
  EXPECT_EQ(manager.UpdateTSSymbolList("x", 6, "X", "2330.TW", 0), 1);
  EXPECT_EQ(manager.GetTQSymbolCount("x", 6), 1);
}

TEST_F(TradingListsAddTest, TheSymbolsAreAskedForOnce) {
  StartEmpty();
  manager.AddTSSymbolList("x", 6, "X", "2330.TW,2317.TW,2454.TW", 0);
  manager.GetTQSymbolCount("x", 6);
  EXPECT_EQ(standin::Calls().size(), static_cast<size_t>(standin::CountCalls("VLGetSymbolInfos")));
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(TradingListsAddTest, AnIdThatIsTakenOrTooLongOrNotForAFileIsRefused) {
  StartEmpty();
  ASSERT_NE(manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0), 0);
  EXPECT_EQ(manager.AddTSSymbolList("X", 6, "Y", "2330.TW", 0), 0);
  EXPECT_EQ(manager.AddTSSymbolList(std::string(37, 'i').c_str(), 6, "Y", "2330.TW", 0), 0);
  EXPECT_EQ(manager.AddTSSymbolList("it's", 6, "Y", "2330.TW", 0), 0);
  EXPECT_EQ(Shape(), "x/X/2330.TW");
  EXPECT_NE(manager.AddTSSymbolList(std::string(36, 'i').c_str(), 6, "Y", "2330.TW", 0), 0);
}

TEST_F(TradingListsAddTest, AnEmptyIdBecomesAGuid) {
  StartEmpty();
  EXPECT_NE(manager.AddTSSymbolList("", 6, "X", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("", 6, "Y", "2330.TW", 0), 0);
  TQSymbolListInfo first = {};
  TQSymbolListInfo second = {};
  ASSERT_EQ(manager.GetTQSymbolListInfo(0, &first, 6), 1);
  ASSERT_EQ(manager.GetTQSymbolListInfo(1, &second, 6), 1);
  EXPECT_EQ(std::strlen(first.ID), 36u);
  EXPECT_STRNE(first.ID, second.ID);
  for (const int dash : {8, 13, 18, 23})
    EXPECT_EQ(first.ID[dash], '-');
}

TEST_F(TradingListsAddTest, ATakenNameGetsTheSuffixAgainAndAgainFiveTimesAtMost) {
  StartEmpty();
  std::string name = "Name";
  for (int i = 0; i <= 5; ++i) {
    const std::string id = std::to_string(i);
    ASSERT_NE(manager.AddTSSymbolList(id.c_str(), 6, i % 2 == 0 ? "Name" : "NAME", "2330.TW", 0),
              0);
    std::string wanted = i % 2 == 0 ? "Name" : "NAME";
    for (int k = 0; k < i; ++k)
      wanted += UpdateSuffix();
    EXPECT_EQ(NameOf(id.c_str()), wanted);
  }
  EXPECT_EQ(manager.AddTSSymbolList("6", 6, "Name", "2330.TW", 0), 0);
  EXPECT_EQ(manager.GetSymbolListCount(6), 6);
}

TEST_F(TradingListsAddTest, ALongNameThatIsTakenIsShortenedInFrontOfItsSuffixes) {
  StartEmpty();
  const std::string name(70, 'n');
  for (int i = 0; i <= 5; ++i)
    EXPECT_NE(manager.AddTSSymbolList(std::to_string(i).c_str(), 6, name.c_str(), "2330.TW", 0), 0);
  EXPECT_EQ(NameOf("0"), name.substr(0, 64));
  EXPECT_EQ(NameOf("1"), name.substr(0, 64 - UpdateSuffix().size()) + UpdateSuffix());
  EXPECT_EQ(NameOf("5").size(), 64u);
  EXPECT_EQ(manager.AddTSSymbolList("6", 6, name.c_str(), "2330.TW", 0), 0);
}

TEST_F(TradingListsAddTest, TheKindIsWhatIsChecked) {
  StartWithUserLists("<List ID='u' Name='User' Value='2330.TW'/>");
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.AddTSSymbolList("u", 1, "X", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("a", 1, "user", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddTSSymbolList("u", 6, "User", "2330.TW", 0), 0);
  EXPECT_EQ(Shape(), "a/user" + UpdateSuffix() + "/2330.TW|u/User/2330.TW");
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
}

TEST_F(TradingListsAddTest, AnUpdateReplacesTheSymbolsAndKeepsTheName) {
  StartEmpty();
  manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("X", 6, "Other", "2317.TW,2454.TW", 0), 1);
  EXPECT_EQ(Shape(), "x/X/2317.TW,2454.TW");
  EXPECT_EQ(Notified(), "40 TSSymbolList");
  EXPECT_EQ(manager.UpdateTSSymbolList("x", 6, "", "", 0), 1);
  EXPECT_EQ(Shape(), "x/X/");
}

TEST_F(TradingListsAddTest, AnUpdateWithTheSameSymbolsTellsTheTerminalToo) {
  StartEmpty();
  manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("x", 6, "X", "2330.TW", 0), 1);
  EXPECT_EQ(Notified(), "40 TSSymbolList");
}

TEST_F(TradingListsAddTest, AnUpdateOfAMissingListAddsIt) {
  StartEmpty();
  EXPECT_NE(manager.UpdateTSSymbolList("x", 6, "X", "GONE.TW,2330.TW", 0), 0);
  EXPECT_EQ(Shape(), "x/X/2330.TW");
  EXPECT_EQ(Notified(), "");
  EXPECT_EQ(manager.UpdateTSSymbolList("y", 6, "", "2330.TW", 0), 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("y", 6, "Y", "", 0), 0);
}

TEST_F(TradingListsAddTest, AnUpdateLooksAmongTradingListsWhateverTheKind) {
  StartWithUserLists("<List ID='x' Name='User' Value='2330.TW'/>");
  manager.AddTSSymbolList("y", 6, "Y", "2330.TW", 0);
  EXPECT_EQ(manager.UpdateTSSymbolList("y", 1, "Y", "2317.TW", 0), 1);
  EXPECT_EQ(Symbols("y"), "2317.TW");
  EXPECT_EQ(manager.UpdateTSSymbolList("x", 1, "X", "2317.TW", 0), 0); // the user has that id
}

TEST_F(TradingListsAddTest, ASymbolThatTheServiceLearnsOfGetsItsRow) {
  StartEmpty();
  manager.AddTSSymbolList("x", 6, "X", "2330.TW", 0);
  manager.UpdateTSSymbolList("x", 6, "X", "NEW.TW,2330.TW", 0);
  EXPECT_EQ(manager.GetTQSymbolCount("x", 6), 1);
  standin::Market market = Market();
  standin::Instrument added = market.instruments[0];
  added.code = "NEW";
  market.instruments.push_back(added);
  standin::SetMarket(market);
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("x", &list, 6), 1);
  list->Update3();
  EXPECT_EQ(manager.GetTQSymbolCount("x", 6), 2);
}

TEST_F(TradingListsAddTest, DeletingTakesTheFirstWithThatId) {
  StartEmpty();
  manager.AddTSSymbolList("a", 6, "A", "2330.TW", 0);
  manager.AddTSSymbolList("b", 6, "B", "2317.TW", 0);
  EXPECT_EQ(manager.DeleteTSSymbolList("none"), 0);
  EXPECT_EQ(manager.DeleteTSSymbolList("A"), 1);
  EXPECT_EQ(Shape(), "b/B/2317.TW");
  EXPECT_EQ(manager.DeleteTSSymbolList("a"), 0);
  EXPECT_EQ(Notified(), "");
}

TEST_F(TradingListsAddTest, ClearingTakesAllTradingListsAndNoOthers) {
  StartWithUserLists("<List ID='u' Name='User' Value='2330.TW'/>");
  manager.AddTSSymbolList("a", 6, "A", "2330.TW", 0);
  manager.ClearTSSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(6), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
}

TEST_F(TradingListsAddTest, TradingListsAreNotSavedWithTheUsersLists) {
  StartWithUserLists("<List ID='u' Name='User' Value='2330.TW'/>");
  manager.AddTSSymbolList("a", 6, "A", "2330.TW", 0);
  ASSERT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(ReadWorking().find("'a'"), std::string::npos);
  EXPECT_NE(ReadWorking().find("'u'"), std::string::npos);
}

} // namespace
