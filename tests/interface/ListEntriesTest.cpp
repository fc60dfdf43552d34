// Entries of one list.
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

class ListTextEntryTest : public EditTest {
protected:
  std::string Ids() {
    CString symbols;
    EXPECT_EQ(manager.GetSymbolListIDs(1, "a", symbols, nullptr), 1);
    return symbols.GetString();
  }
};

TEST_F(ListTextEntryTest, RemovingMovesTheEntriesBehindDown) {
  StartWith({"a/A/One:,2330.TW,Two:,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A", 1), 1);
  EXPECT_EQ(Ids(), "One:,Two:,2317.TW");
  EXPECT_EQ(Rows("a"), ": : 2317.TW");
}

TEST_F(ListTextEntryTest, RemovingAHeadingKeepsTheOthersText) {
  StartWith({"a/A/One:,2330.TW,Two:,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Ids(), "2330.TW,Two:,2317.TW");
}

TEST_F(ListTextEntryTest, RemovingTheOnlyEntryEmptiesTheList) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Ids(), "");
  EXPECT_EQ(manager.GetTQSymbolCount("a", 1), 0);
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 0);
}

TEST_F(ListTextEntryTest, RemovingBehindTheLastEntryDoesNothing) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 2), 0);
  EXPECT_EQ(manager.DeleteSymbolList("none", 0), 0);
  EXPECT_EQ(Ids(), "2330.TW,2317.TW");
}

TEST_F(ListTextEntryTest, SwappingExchangesRecordsAndTexts) {
  StartWith({"a/A/One:,2330.TW,2317.TW,Two:"});
  EXPECT_EQ(manager.SwapSymbolList("a", 0, 2), 1);
  EXPECT_EQ(Ids(), "2317.TW,2330.TW,One:,Two:");
  EXPECT_EQ(Rows("a"), "2317.TW 2330.TW : :");
  EXPECT_EQ(manager.SwapSymbolList("a", 3, 2), 1);
  EXPECT_EQ(Ids(), "2317.TW,2330.TW,Two:,One:");
}

TEST_F(ListTextEntryTest, SwappingAnEntryWithItselfOrWithNoneDoesNothing) {
  StartWith({"a/A/2330.TW,2317.TW"});
  manager.SwapSymbolList("a", 1, 1);
  EXPECT_EQ(manager.SwapSymbolList("a", 0, 2), 0);
  EXPECT_EQ(manager.SwapSymbolList("a", 2, 0), 0);
  EXPECT_EQ(Ids(), "2330.TW,2317.TW");
}

TEST_F(ListTextEntryTest, InsertingGoesBehindOrInFrontOfTheEntry) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "1101.TW", 0, 0), 1);
  EXPECT_EQ(Ids(), "2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "6488.TE", 1, 0), 1);
  EXPECT_EQ(Ids(), "6488.TE,2330.TW,1101.TW,2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 3, "DIS.NYSE", 0, 0), 1);
  EXPECT_EQ(Ids(), "6488.TE,2330.TW,1101.TW,2317.TW,DIS.NYSE");
  EXPECT_EQ(Rows("a"), "6488.TE 2330.TW 1101.TW 2317.TW DIS.NYSE");
}

TEST_F(ListTextEntryTest, InsertingIntoAnEmptyListMakesItsFirstEntry) {
  for (int before : {0, 1}) {
    StartWith({"a/A/"});
    EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", before, 0), 1);
    EXPECT_EQ(Ids(), "2330.TW");
    EXPECT_EQ(Rows("a"), "2330.TW");
  }
}

TEST_F(ListTextEntryTest, AHeadingGetsAColonBehindItsText) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "Chips", 1, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,2330.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 1, "A:B", 0, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,2330.TW,A:B:");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "Chips", 1, 1), 1);
  EXPECT_EQ(Ids(), "Chips:,Chips:,2330.TW,A:B:");
  EXPECT_EQ(Rows("a"), ": : 2330.TW :");
}

TEST_F(ListTextEntryTest, AHeadingMayBearTheTextOfASymbol) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", 1, 1), 1);
  EXPECT_EQ(Ids(), "2330.TW:,2330.TW");
}

TEST_F(ListTextEntryTest, ASymbolThatIsThereIsRefusedAndOneThatIsPartOfAnotherIsNot) {
  StartWith({"a/A/BRK.B.NYSE,2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.TW", 1, 0), 0);
  EXPECT_EQ(Ids(), "BRK.B.NYSE,2330.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 1, "330.TW", 0, 0), 1);
  EXPECT_EQ(Ids(), "BRK.B.NYSE,2330.TW,330.TW");
}

TEST_F(ListTextEntryTest, ReplacingPutsTheTextInTheEntrysPlace) {
  StartWith({"a/A/One:,2330.TW,2317.TW"});
  EXPECT_EQ(manager.ReplaceSymbolList("a", 1, "6488.TE"), 1);
  EXPECT_EQ(Ids(), "One:,6488.TE,2317.TW");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, "Two:"), 1);
  EXPECT_EQ(Ids(), "Two:,6488.TE,2317.TW");
  EXPECT_EQ(Rows("a"), ": 6488.TE 2317.TW");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 3, "DIS.NYSE"), 0);
}

TEST_F(ListTextEntryTest, ReplacingBySymbolsThatAreThereIsNotRefused) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, "2317.TW"), 1);
  EXPECT_EQ(Ids(), "2317.TW,2317.TW");
  EXPECT_EQ(Rows("a"), "2317.TW 2317.TW");
}

TEST_F(ListTextEntryTest, TheRebuiltStringHasTheRecordsIdsAndSingleCommas) {
  StartWith({"a/A/,2330.tw,,My Head:,2317.Tw,1101.TW,"});
  EXPECT_EQ(manager.DeleteSymbolList("a", 2), 1);
  EXPECT_EQ(Ids(), "2330.TW,My Head:,1101.TW");
}

TEST_F(ListTextEntryTest, NoEntryEditSavesOrTells) {
  StartWith({"a/A/One:,2330.TW,2317.TW"});
  const std::string working = ReadWorking();
  manager.DeleteSymbolList("a", 0);
  manager.SwapSymbolList("a", 0, 1);
  manager.InsertSymbolList("a", 0, "1101.TW", 0, 0);
  manager.ReplaceSymbolList("a", 0, "6488.TE");
  EXPECT_EQ(Ids(), "6488.TE,1101.TW,2330.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

} // namespace
