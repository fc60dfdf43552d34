// Editing whole lists: adding, replacing, deleting, renaming ids, and what the terminal is told.
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class EditListsTest : public EditTest {};

TEST_F(EditListsTest, AddingAppendsSavesLogsAndTellsTheTerminalInThatOrder) {
  StartWith({});
  standin::ClearCalls();
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.AddSymbolList("id-1", 0, "Mine", "2330.TW,2317.TW", 1, 0), 1);
  EXPECT_EQ(Shape(), "id-1/Mine/2330.TW,2317.TW");
  EXPECT_NE(ReadWorking().find("<List ID='id-1' Name='Mine' Value='2330.TW,2317.TW' Flag='0'/>"),
            std::string::npos);
  ASSERT_EQ(standin::LogLines().size(), lines + 1);
  EXPECT_EQ(standin::LogLines().back().level, 64);
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  ExpectNotified(1, 40, "");
  EXPECT_EQ(standin::Calls().back().operation, "TQSCall");
}

TEST_F(EditListsTest, AddingWithoutAppendPutsTheListFirst) {
  StartWith({"a/A/2330.TW"});
  manager.AddSymbolList("b", 0, "B", "2317.TW", 0, 0);
  EXPECT_EQ(Shape(), "b/B/2317.TW|a/A/2330.TW");
}

TEST_F(EditListsTest, AddingWithoutNameOrSymbolsIsRefused) {
  StartWith({"a/A/2330.TW"});
  const std::string file = ReadWorking();
  EXPECT_EQ(manager.AddSymbolList("b", 0, "", "2317.TW", 1, 0), 0);
  EXPECT_EQ(manager.AddSymbolList("b", 0, "B", "", 1, 1), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(ReadWorking(), file);
  EXPECT_TRUE(standin::Notifications().empty());
}

TEST_F(EditListsTest, AddingAnExistingIdAndNameReplacesItsSymbols) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("A", 0, "a", "2317.TW", 1, 0), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW");
  ExpectNotified(1, 40, "");
}

TEST_F(EditListsTest, AddingAnExistingIdUnderAnotherNameNeedsOverwriteAndKeepsTheName) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("a", 0, "Other", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(manager.AddSymbolList("a", 0, "Other", "2317.TW", 1, 1), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW");
}

TEST_F(EditListsTest, AddingANameThatDiffersInLetterCaseAppendsANumber) {
  StartWith({"a/Chips/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("b", 0, "CHIPS", "2317.TW", 1, 0), 1);
  EXPECT_EQ(Shape(), "a/Chips/2330.TW|b/CHIPS(1)/2317.TW");
}

TEST_F(EditListsTest, AddingANumberedNameThatIsTakenCountsTheNumberUp) {
  StartWith({"a/Chips(1)/2330.TW"});
  EXPECT_EQ(manager.AddSymbolList("b", 0, "Chips(1)", "2317.TW", 1, 0), 1);
  EXPECT_EQ(Shape(), "a/Chips(1)/2330.TW|b/Chips(2)/2317.TW");
}

TEST_F(EditListsTest, TheHundredAndFirstDuplicateOfANameIsRefused) {
  StartWith({});
  for (int i = 0; i <= 100; ++i)
    ASSERT_EQ(manager.AddSymbolList("", 0, "Same", "2330.TW", 1, 0), 1) << i;
  EXPECT_EQ(NameAt(1), "Same(1)");
  EXPECT_EQ(NameAt(100), "Same(100)");
  EXPECT_EQ(manager.AddSymbolList("", 0, "Same", "2330.TW", 1, 0), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 101);
  EXPECT_STREQ(manager.AdjustFileName("Same"), "Same(100)");
}

TEST_F(EditListsTest, NumberStandsInTheNameWhereverTheUserPutIt) {
  StartWith({"a/x(1)y/2330.TW", "b/x(2)y/2330.TW"});
  EXPECT_STREQ(manager.AdjustFileName("x(1)y"), "x(3)y");
  EXPECT_STREQ(manager.AdjustFileName("free"), "free");
}

TEST_F(EditListsTest, LongNamesStayUniqueWithinTheirLimit) {
  StartWith({});
  std::string name;
  for (int i = 0; i < 32; ++i)
    name += "\xB3\x5C";
  for (int i = 0; i < 12; ++i)
    ASSERT_EQ(manager.AddSymbolList("", 0, name.c_str(), "2330.TW", 1, 0), 1);
  EXPECT_EQ(NameAt(0), name);
  EXPECT_EQ(NameAt(1), name.substr(0, 60) + "(1)");
  EXPECT_EQ(NameAt(11), name.substr(0, 60) + "(11)");
}

TEST_F(EditListsTest, AddingWithAnEmptyIdMakesAGuidWhoseThirdGroupIsLowerCase) {
  StartWith({});
  bool letterSeen = false;
  for (int i = 0; i < 40; ++i) {
    ASSERT_EQ(manager.AddSymbolList("", 0, "n", "2330.TW", 1, 0), 1);
    const std::string id = IdAt(i);
    ASSERT_EQ(id.size(), 36u);
    for (size_t at = 0; at < id.size(); ++at) {
      const bool dash = at == 8 || at == 13 || at == 18 || at == 23;
      const bool third = at > 13 && at < 18;
      const std::string allowed = dash ? "-" : third ? "0123456789abcdef" : "0123456789ABCDEF";
      EXPECT_NE(allowed.find(id[at]), std::string::npos) << id << " at " << at;
      letterSeen = letterSeen || (third && id[at] >= 'a');
    }
  }
  EXPECT_TRUE(letterSeen);
}

TEST_F(EditListsTest, AddingToAManagerWithoutDefaultMakesTheFirstListTheDefault) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0);
  EXPECT_EQ(DefaultIndex(), 0);
  manager.SetDefaultIndex(-2);
  manager.ClearSymbolList();
  manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0);
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(EditListsTest, FailedSaveShowsItsMessageAndTheAddedListStays) {
  StartWith({});
  directory.Remove();
  EXPECT_EQ(manager.AddSymbolList("a", 0, "A", "2330.TW", 1, 0), 1);
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  ExpectNotified(1, 40, "");
}

TEST_F(EditListsTest, DeletingFindsTheFirstListIgnoringLetterCaseAndSavesOnly) {
  StartWith({"a/A/2330.TW", "b/B/", "A/again/"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(Shape(), "b/B/|A/again/");
  EXPECT_EQ(ReadWorking().find("Name='A'"), std::string::npos);
  EXPECT_TRUE(standin::Notifications().empty());
  EXPECT_EQ(standin::LogLines().size(), lines);
  EXPECT_EQ(manager.DeleteSymbolList("none"), 0);
}

TEST_F(EditListsTest, DefaultIndexAfterADeletion) {
  const struct {
    int lists, index, deleted, after;
  } rows[] = {
      {1, 0, 0, -1}, // the only list
      {3, 2, 2, 1},  // the default one, the last
      {3, 1, 1, 1},  // the default one: the next list becomes the default
      {3, 2, 0, 2},  // one in front: the index stays and now means another list
      {3, 0, 2, 0},  // one behind
      {3, 7, 2, 7},  // a default beyond the lists
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.lists << " " << row.index << " " << row.deleted);
    std::vector<std::string> lists;
    for (int i = 0; i < row.lists; ++i)
      lists.push_back("id" + std::to_string(i) + "/n/");
    StartWith(lists);
    manager.SetDefaultIndex(row.index);
    EXPECT_EQ(manager.DeleteSymbolList(("id" + std::to_string(row.deleted)).c_str()), 1);
    EXPECT_EQ(DefaultIndex(), row.after);
  }
}

TEST_F(EditListsTest, AfterDeletingTheOnlyListTheFileHoldsNone) {
  StartWith({"a/A/2330.TW"});
  manager.DeleteSymbolList("a");
  EXPECT_NE(ReadWorking().find("<SymbolList DefaultIdx='-1'>\n</SymbolList>"), std::string::npos);
}

TEST_F(EditListsTest, ReplaceIdIsPlainTextAndRewritesLongerIdsToo) {
  StartWith({"a/A/2330.TW,23301.TW,X2330.TW", "b/B/2317.TW"});
  CStringArray oldIds;
  CStringArray newIds;
  oldIds.Add("2330");
  newIds.Add("2454");
  EXPECT_EQ(manager.ReplaceID(&oldIds, &newIds), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW,24541.TW,X2454.TW|b/B/2317.TW");
  EXPECT_NE(ReadWorking().find("2454.TW,24541.TW"), std::string::npos);
  EXPECT_EQ(standin::LogLines().back().text, "ReplaceID");
  EXPECT_EQ(standin::LogLines().back().level, 64);
  ExpectNotified(1, 40, "");
}

TEST_F(EditListsTest, ReplaceIdAppliesThePairsInTurn) {
  StartWith({"a/A/AA,B"});
  CStringArray oldIds;
  CStringArray newIds;
  oldIds.Add("A");
  newIds.Add("B");
  oldIds.Add("BB");
  newIds.Add("C");
  oldIds.Add("without a partner");
  EXPECT_EQ(manager.ReplaceID(&oldIds, &newIds), 1);
  EXPECT_EQ(Shape(), "a/A/C,B");
}

TEST_F(EditListsTest, ReplaceIdThatChangesNothingDoesNothing) {
  StartWith({"a/A/2330.TW"});
  const std::string file = ReadWorking();
  CStringArray oldIds;
  CStringArray newIds;
  EXPECT_EQ(manager.ReplaceID(&oldIds, &newIds), 0);
  oldIds.Add("9999");
  newIds.Add("1");
  oldIds.Add("");
  newIds.Add("x");
  EXPECT_EQ(manager.ReplaceID(&oldIds, &newIds), 0);
  EXPECT_EQ(manager.ReplaceID(nullptr, &newIds), 0);
  EXPECT_EQ(manager.ReplaceID(&oldIds, nullptr), 0);
  EXPECT_TRUE(standin::Notifications().empty());
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(EditListsTest, SetSymbolListTakesCopiesAndBringsTheIndexIntoRange) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW", "c/C/"});
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  manager.SetDefaultIndex(2);
  delete static_cast<CSymbolList*>(copies[2]);
  copies.RemoveAt(2);
  EXPECT_EQ(manager.SetSymbolList(&copies), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  EXPECT_EQ(DefaultIndex(), 1);
  manager.SetDefaultIndex(-1);
  manager.SetSymbolList(&copies);
  EXPECT_EQ(DefaultIndex(), 0);
  CPtrArray none;
  manager.SetSymbolList(&none);
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(DefaultIndex(), -1);
  EXPECT_EQ(manager.SetSymbolList(nullptr), 0);
  DeleteCopies(copies);
}

TEST_F(EditListsTest, SetSymbolListOfTheManagersOwnListsLosesNothing) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  CPtrArray live;
  for (const char* id : {"b", "a"}) {
    CSymbolList* list = nullptr;
    manager.GetSymbolList(id, &list, 1);
    live.Add(list);
  }
  EXPECT_EQ(manager.SetSymbolList(&live), 1);
  EXPECT_EQ(Shape(), "b/B/2317.TW|a/A/2330.TW");
}

TEST_F(EditListsTest, TenThousandListsCanBeAddedAndComeBack) {
  constexpr int kLists = 10000;
  std::vector<std::string> lists;
  for (int i = 0; i < kLists; ++i)
    lists.push_back("id" + std::to_string(i) + "/n" + std::to_string(i) + "/2330.TW");
  StartWith(lists);
  EXPECT_EQ(manager.AddSymbolList("last", 0, "n9999", "2317.TW", 1, 0), 1);
  EXPECT_EQ(NameAt(kLists), "n9999(1)");
  manager.LoadSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), kLists + 1);
}

} // namespace
