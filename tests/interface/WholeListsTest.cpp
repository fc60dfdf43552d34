// Whole lists: added, overwritten and deleted.
#include <cctype>

#include "tests/interface/WholeListsTest.h"

namespace {

TEST_F(WholeListsTest, AnEmptyNameOrEmptySymbolsAreRefusedEvenForAListThatIsThere) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "", 1, 1), 0);
  EXPECT_EQ(Add("a", "", "2317.TW", 1, 1), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  ExpectNotNotified();
}

TEST_F(WholeListsTest, TheSameIdAndNameReplaceTheSymbolsWhateverOverwriteSays) {
  StartWith({"a/A/2330.TW", "b/B/1101.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("B", "b", "2317.TW", 0, 0), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(WholeListsTest, TheSameSymbolsAreSavedAndToldAllTheSame) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  directory.Write("SymbolList.xml", "");
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
  ASSERT_GT(standin::LogLines().size(), lines);
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  ExpectNotified(1, 40, "");
}

TEST_F(WholeListsTest, ReplacedSymbolsAreNotRenamedAndNewOnesAre) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "6488.TW"), 1);
  EXPECT_EQ(Add("b", "B", "6488.TW"), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TW|b/B/6488.TE");
}

TEST_F(WholeListsTest, ANewListIsSavedLoggedAndTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("b", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(WholeListsTest, AppendZeroInsertsFirstAndLeavesTheIndex) {
  StartWith({"a/A/2330.TW", "b/B/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(Add("c", "C", "2317.TW", 0), 1);
  EXPECT_EQ(Shape(), "c/C/2317.TW|a/A/2330.TW|b/B/2330.TW");
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(WholeListsTest, AnEmptyIdGetsAGuidWithASmallThirdGroup) {
  StartWith({});
  for (int i = 0; i < 20; ++i)
    ASSERT_EQ(Add("", "A", "2330.TW"), 1);
  for (int i = 0; i < 20; ++i) {
    const std::string id = IdAt(i);
    ASSERT_EQ(id.size(), 36u) << id;
    for (size_t at = 0; at < id.size(); ++at) {
      if (at == 8 || at == 13 || at == 18 || at == 23)
        EXPECT_EQ(id[at], '-') << id;
      else if (at > 13 && at < 18)
        EXPECT_TRUE(std::isxdigit(id[at]) && !std::isupper(id[at])) << id;
      else
        EXPECT_TRUE(std::isxdigit(id[at]) && !std::islower(id[at])) << id;
    }
    EXPECT_EQ(manager.CheckIDandName(id.c_str(), NameAt(i).c_str(), 1), 3);
  }
}

TEST_F(WholeListsTest, AnIdUnderAnotherNameIsRefusedWithoutOverwrite) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("a", "Z", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(WholeListsTest, WithOverwriteTheListKeepsItsNameAndTheChangeIsTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("A", "Z", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(WholeListsTest, AddingSetsAnIndexOfMinusOneToZero) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
}

TEST_F(WholeListsTest, AddingLeavesAnotherIndexAlone) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(5);
  EXPECT_EQ(Add("b", "B", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 5);
}

TEST_F(WholeListsTest, AFailedSaveIsToldAndTheNewListStays) {
  StartWith({"a/A/2330.TW"});
  directory.Remove();
  Add("b", "B", "2317.TW");
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
}

TEST_F(WholeListsTest, DeletingMovesTheIndexOnlyWithTheDefaultListAtTheEnd) {
  const struct {
    int before;
    const char* id;
    int after;
  } kCases[] = {{2, "c", 1}, {1, "b", 1}, {0, "a", 0}, {2, "a", 2}, {1, "c", 1}, {0, "c", 0}};
  for (const auto& each : kCases) {
    StartWith({"a/A/", "b/B/", "c/C/"});
    manager.SetDefaultIndex(each.before);
    EXPECT_EQ(manager.DeleteSymbolList(each.id), 1);
    EXPECT_EQ(manager.GetSymbolListCount(1), 2);
    EXPECT_EQ(DefaultIndex(), each.after) << each.before << each.id;
  }
}

TEST_F(WholeListsTest, DeletingTheOnlyListWritesAFileWithoutLists) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(DefaultIndex(), -1);
  EXPECT_EQ(ReadWorking(), File("-1", {}));
}

TEST_F(WholeListsTest, DeletingTakesTheFirstListWithTheIdAndSaves) {
  StartWith({"x/X/", "a/A/", "A/B/"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(Shape(), "x/X/|A/B/");
  EXPECT_EQ(ReadWorking(), File("0", {Element("x", "X", ""), Element("A", "B", "")}));
  const std::string working = ReadWorking();
  EXPECT_EQ(manager.DeleteSymbolList("none"), 0);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(WholeListsTest, OfTwoListsWithOneIdTheFirstCounts) {
  StartWith({"a/A/2330.TW", "a/B/1101.TW"});
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW|a/B/1101.TW");
}

TEST_F(WholeListsTest, DeletingNeitherLogsNorTells) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.DeleteSymbolList("b"), 1);
  EXPECT_EQ(standin::LogLines().size(), lines);
  ExpectNotNotified();
}

TEST_F(WholeListsTest, TheTerminalIsToldWhenFileAndLineAreWritten) {
  StartWith({});
  std::string seen;
  standin::OnCall("TQSCall", [&] { seen = standin::LogLines().back().text + ReadWorking(); });
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(seen, "Add SymbolList" + File("0", {Element("a", "A", "2330.TW")}));
  CStringArray from;
  CStringArray to;
  from.Add("23");
  to.Add("2323");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(seen, "ReplaceID" + File("0", {Element("a", "A", "232330.TW")}));
  standin::OnCall("TQSCall", {});
}

TEST_F(WholeListsTest, AnIndexBeyondTheListsStaysWhenAListIsDeleted) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.DeleteSymbolList("a"), 1);
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(ReadWorking(), File("1", {}));
}

TEST_F(WholeListsTest, ASystemIdInSmallLettersIsAddedAsASystemListAndWrittenAsNone) {
  StartWith({});
  EXPECT_EQ(Add("zusyslist1", "A", "2330.TW"), 1);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST1", 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("zusyslist1", "A", "2330.TW")}));
}

} // namespace
