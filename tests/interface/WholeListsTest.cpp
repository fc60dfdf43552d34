// Whole lists: added, replaced, deleted, renamed.
#include <cctype>
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

class ListTextEditTest : public EditTest {
protected:
  // The file, the line and the notification of a change that is all of that.
  void ExpectTold(size_t lines, const char* line) {
    ASSERT_EQ(standin::LogLines().size(), lines + 1);
    EXPECT_EQ(standin::LogLines().back().level, 64);
    EXPECT_EQ(standin::LogLines().back().text, line);
    ExpectNotified(1, 40, "");
  }
  int Add(const char* id, const char* name, const char* symbols, int append = 1,
          int overwrite = 0) {
    return manager.AddSymbolList(id, 0, name, symbols, append, overwrite);
  }
  std::string Given(const CPtrArray& lists) {
    return static_cast<CSymbolList*>(lists.GetAt(0))->GetIDs().GetString();
  }
};

TEST_F(ListTextEditTest, AnEmptyNameOrEmptySymbolsAreRefusedEvenForAListThatIsThere) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "", 1, 1), 0);
  EXPECT_EQ(Add("a", "", "2317.TW", 1, 1), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, TheSameIdAndNameReplaceTheSymbolsWhateverOverwriteSays) {
  StartWith({"a/A/2330.TW", "b/B/1101.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("B", "b", "2317.TW", 0, 0), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, TheSameSymbolsAreSavedAndToldAllTheSame) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  directory.Write("SymbolList.xml", "");
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
  ASSERT_GT(standin::LogLines().size(), lines);
  EXPECT_EQ(standin::LogLines().back().text, "Add SymbolList");
  ExpectNotified(1, 40, "");
}

TEST_F(ListTextEditTest, ReplacedSymbolsAreNotRenamedAndNewOnesAre) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Add("a", "A", "6488.TW"), 1);
  EXPECT_EQ(Add("b", "B", "6488.TW"), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TW|b/B/6488.TE");
}

TEST_F(ListTextEditTest, ANewListIsSavedLoggedAndTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("b", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW"), Element("b", "B", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, AppendZeroInsertsFirstAndLeavesTheIndex) {
  StartWith({"a/A/2330.TW", "b/B/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(Add("c", "C", "2317.TW", 0), 1);
  EXPECT_EQ(Shape(), "c/C/2317.TW|a/A/2330.TW|b/B/2330.TW");
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListTextEditTest, AnEmptyIdGetsAGuidWithASmallThirdGroup) {
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

TEST_F(ListTextEditTest, AnIdUnderAnotherNameIsRefusedWithoutOverwrite) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("a", "Z", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, WithOverwriteTheListKeepsItsNameAndTheChangeIsTold) {
  StartWith({"a/A/2330.TW"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(Add("A", "Z", "2317.TW", 1, 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2317.TW")}));
  ExpectTold(lines, "Add SymbolList");
}

TEST_F(ListTextEditTest, AddingSetsAnIndexOfMinusOneToZero) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  EXPECT_EQ(Add("a", "A", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(ReadWorking(), File("0", {Element("a", "A", "2330.TW")}));
}

TEST_F(ListTextEditTest, AddingLeavesAnotherIndexAlone) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(5);
  EXPECT_EQ(Add("b", "B", "2330.TW"), 1);
  EXPECT_EQ(DefaultIndex(), 5);
}

TEST_F(ListTextEditTest, AFailedSaveIsToldAndTheNewListStays) {
  StartWith({"a/A/2330.TW"});
  directory.Remove();
  Add("b", "B", "2317.TW");
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages().back().id, 48026u);
}

TEST_F(ListTextEditTest, AFreeNameIsLeftAlone) {
  StartWith({"a/A/", "b/B/"});
  EXPECT_STREQ(manager.AdjustFileName("C"), "C");
  EXPECT_STREQ(manager.AdjustFileName("C(1)"), "C(1)");
}

TEST_F(ListTextEditTest, ATakenNameGetsOneThenTwoInItsPlace) {
  StartWith({"a/Chips/", "b/Other/"});
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(1)");
  ASSERT_EQ(Add("c", "chips", "2330.TW"), 1);
  EXPECT_EQ(NameAt(2), "chips(1)");
  EXPECT_STREQ(manager.AdjustFileName("CHIPS"), "CHIPS(2)");
}

TEST_F(ListTextEditTest, ANameWithItsNumberIsRenumbered) {
  StartWith({"a/A(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(1)"), "A(2)");
}

TEST_F(ListTextEditTest, AnotherNumberIsNoSuffixToRenumber) {
  StartWith({"a/A(2)/", "b/A(2)(1)/"});
  EXPECT_STREQ(manager.AdjustFileName("A(2)"), "A(2)(2)");
}

TEST_F(ListTextEditTest, EveryOccurrenceOfTheSuffixIsRenumbered) {
  StartWith({"a/(1)A(1)/", "b/(2)A(2)/"});
  EXPECT_STREQ(manager.AdjustFileName("(1)A(1)"), "(3)A(3)");
}

TEST_F(ListTextEditTest, AfterAHundredNumbersTheNameIsRefused) {
  StartWith({});
  for (int i = 0; i <= 100; ++i)
    ASSERT_EQ(Add("", "A", "2330.TW"), 1) << i;
  EXPECT_EQ(NameAt(1), "A(1)");
  EXPECT_EQ(NameAt(100), "A(100)");
  EXPECT_STREQ(manager.AdjustFileName("a"), "a(100)");
  const std::string working = ReadWorking();
  EXPECT_EQ(Add("", "A", "2330.TW"), 0);
  EXPECT_EQ(manager.GetSymbolListCount(1), 101);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextEditTest, AListIsPutInAsItIsWithoutSaveOrNameCheck) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  CSymbolList source;
  source.SetID("a");
  source.SetName("A");
  source.Update1("6488.TW,2317.TW");
  EXPECT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_EQ(manager.AddTQSymbolList(&source, 0), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TE,2317.TW|a/A/2330.TW|a/A/6488.TE,2317.TW");
  EXPECT_STREQ(source.GetIDs(), "6488.TE,2317.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, SettingListsReplacesAllAndRenamesMovedSymbols) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const std::string working = ReadWorking();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[0])->Update1("6488.TW");
  static_cast<CSymbolList*>(copies[1])->SetName("A");
  EXPECT_EQ(manager.SetSymbolList(&copies), 1);
  EXPECT_EQ(Given(copies), "6488.TE");
  DeleteCopies(copies);
  EXPECT_EQ(Shape(), "a/A/6488.TE|b/A/");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, SettingListsBringsTheIndexIntoRange) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const struct {
    int before;
    int after;
  } kCases[] = {{-1, 0}, {-7, 0}, {0, 0}, {1, 1}, {2, 1}, {30, 1}};
  for (const auto& each : kCases) {
    CPtrArray copies;
    manager.GetSymbolList(copies, 1);
    manager.SetDefaultIndex(each.before);
    manager.SetSymbolList(&copies);
    DeleteCopies(copies);
    EXPECT_EQ(DefaultIndex(), each.after) << each.before;
  }
}

TEST_F(ListTextEditTest, DeletingMovesTheIndexOnlyWithTheDefaultListAtTheEnd) {
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

TEST_F(ListTextEditTest, DeletingTheOnlyListWritesAFileWithoutLists) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(DefaultIndex(), -1);
  EXPECT_EQ(ReadWorking(), File("-1", {}));
}

TEST_F(ListTextEditTest, DeletingTakesTheFirstListWithTheIdAndSaves) {
  StartWith({"x/X/", "a/A/", "A/B/"});
  EXPECT_EQ(manager.DeleteSymbolList("A"), 1);
  EXPECT_EQ(Shape(), "x/X/|A/B/");
  EXPECT_EQ(ReadWorking(), File("0", {Element("x", "X", ""), Element("A", "B", "")}));
  const std::string working = ReadWorking();
  EXPECT_EQ(manager.DeleteSymbolList("none"), 0);
  EXPECT_EQ(ReadWorking(), working);
}

TEST_F(ListTextEditTest, ReplacingIdsWorksOnPlainTextInEveryListAndTellsOnce) {
  StartWith({"a/A/2330.TW,12330.TW", "b/B/1101.TW", "c/C/X2330.TWX:,2330.TW"});
  const size_t lines = standin::LogLines().size();
  CStringArray from;
  CStringArray to;
  from.Add("2330.TW");
  to.Add("2317.TW");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW,12317.TW|b/B/1101.TW|c/C/X2317.TWX:,2317.TW");
  EXPECT_EQ(ReadWorking(),
            File("0", {Element("a", "A", "2317.TW,12317.TW"), Element("b", "B", "1101.TW"),
                       Element("c", "C", "X2317.TWX:,2317.TW")}));
  EXPECT_EQ(Rows("a"), "2317.TW");
  ExpectTold(lines, "ReplaceID");
}

TEST_F(ListTextEditTest, AnIdThatBeginsALongerOneChangesThatToo) {
  StartWith({"a/A/TXF,TXFL6.TF"});
  CStringArray from;
  CStringArray to;
  from.Add("TXF");
  to.Add("MXF");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/MXF,MXFL6.TF");
  EXPECT_EQ(Rows("a"), "MXFL6.TF");
}

TEST_F(ListTextEditTest, IdsAreReplacedInTurnAndLetterCaseCounts) {
  StartWith({"a/A/2330.TW,dis.nyse"});
  CStringArray from;
  CStringArray to;
  for (const char* id : {"2330.TW", "2317.TW", "DIS"})
    from.Add(id);
  for (const char* id : {"2317.TW", "2454.TW", "AAPL"})
    to.Add(id);
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW,dis.nyse");
}

TEST_F(ListTextEditTest, ReplacingNothingNeitherSavesNorTells) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  const size_t lines = standin::LogLines().size();
  CStringArray ids;
  ids.Add("NOSUCH");
  EXPECT_EQ(manager.ReplaceID(&ids, &ids), 0);
  EXPECT_EQ(manager.ReplaceID(nullptr, &ids), 0);
  EXPECT_EQ(manager.ReplaceID(&ids, nullptr), 0);
  EXPECT_EQ(ReadWorking(), working);
  EXPECT_EQ(standin::LogLines().size(), lines);
  ExpectNotNotified();
}

// Each pair doubles a text of two bytes: after 28 the list had 536 MB, after a few more the process
// ended.
TEST_F(ListTextEditTest, ReplacingThatNoFileCouldHoldIsRefused) {
  StartWith({"b/B/2330.TW,aa", "a/A/aa"});
  const std::string working = ReadWorking();
  const size_t lines = standin::LogLines().size();
  CStringArray from;
  CStringArray to;
  for (int i = 0; i < 28; ++i) {
    from.Add("a");
    to.Add("aa");
  }
  EXPECT_EQ(manager.ReplaceID(&from, &to), 0);
  EXPECT_EQ(Shape(), "b/B/2330.TW,aa|a/A/aa");
  EXPECT_EQ(ReadWorking(), working);
  ASSERT_EQ(standin::LogLines().size(), lines + 1);
  EXPECT_EQ(standin::LogLines().back().level, 64);
  EXPECT_EQ(standin::LogLines().back().text,
            "ReplaceID is refused: no list file can hold the lists after it");
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, ReplacingIsBoundedForAllListsTogether) {
  StartWith({"a/A/aaaaaaaa", "b/B/aaaaaaaa", "c/C/aaaaaaaa"});
  CStringArray from;
  CStringArray to;
  from.Add("aaaaaaaa"); // to 3 MiB
  to.Add(CString('b', 3 << 20));
  from.Add("b"); // 8 times that fits into the file, three times that does not
  to.Add("cccccccc");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 0);
  EXPECT_EQ(Shape(), "a/A/aaaaaaaa|b/B/aaaaaaaa|c/C/aaaaaaaa");
}

TEST_F(ListTextEditTest, OfTwoListsWithOneIdTheFirstCounts) {
  StartWith({"a/A/2330.TW", "a/B/1101.TW"});
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 0), 0);
  EXPECT_EQ(Add("a", "B", "2317.TW", 1, 1), 1);
  EXPECT_EQ(Shape(), "a/A/2317.TW|a/B/1101.TW");
}

TEST_F(ListTextEditTest, OldTextsAreReplacedOverTheCommasToo) {
  StartWith({"a/A/2330.TW,2317.TW"});
  CStringArray from;
  CStringArray to;
  from.Add("TW,23");
  to.Add("TE,64");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TE,6417.TW");
}

TEST_F(ListTextEditTest, SettingNoListsDestroysAllAndAMissingArrayNone) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.SetSymbolList(nullptr), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  CPtrArray none;
  EXPECT_EQ(manager.SetSymbolList(&none), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(ListTextEditTest, DeletingNeitherLogsNorTells) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const size_t lines = standin::LogLines().size();
  EXPECT_EQ(manager.DeleteSymbolList("b"), 1);
  EXPECT_EQ(standin::LogLines().size(), lines);
  ExpectNotNotified();
}

TEST_F(ListTextEditTest, TheTerminalIsToldWhenFileAndLineAreWritten) {
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

TEST_F(ListTextEditTest, AnIndexBeyondTheListsStaysWhenAListIsDeleted) {
  StartWith({"a/A/2330.TW"});
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.DeleteSymbolList("a"), 1);
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(ReadWorking(), File("1", {}));
}

TEST_F(ListTextEditTest, NamesOfFullLengthAreMadeUniqueWithinIt) {
  StartWith({});
  const std::string name(64, 'n');
  for (int i = 0; i < 12; ++i)
    ASSERT_EQ(Add("", (name + "tail").c_str(), "2330.TW"), 1);
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(NameAt(i).size(), 64u);
    EXPECT_EQ(manager.CheckNameExist(NameAt(i).c_str(), 1, i, 1), 0) << i;
  }
}

TEST_F(ListTextEditTest, OnlyUserListsTakeANameFromAUserList) {
  StartWith({});
  ASSERT_EQ(manager.AddCloudSymbolList("k", "Cloud", "2330.TW", 0), 1);
  EXPECT_STREQ(manager.AdjustFileName("Cloud"), "Cloud");
  EXPECT_EQ(Add("k", "Cloud", "2317.TW"), 1);
  EXPECT_EQ(Shape(), "k/Cloud/2317.TW");
}

TEST_F(ListTextEditTest, ASystemIdInSmallLettersIsAddedAsASystemListAndWrittenAsNone) {
  StartWith({});
  EXPECT_EQ(Add("zusyslist1", "A", "2330.TW"), 1);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST1", 1), 1);
  EXPECT_EQ(ReadWorking(), File("0", {Element("zusyslist1", "A", "2330.TW")}));
}

} // namespace
