// What show, export and diff print.
#include "tests/tools/ToolTest.h"

#include "tools/tqlists/lists/Comparison.h"
#include "tools/tqlists/lists/DisplayWidth.h"

namespace {

const std::string kTwoLists = ListFile(
    "utf-8", 1, ListLine("1", "許功蓋", "2330.TW,Funds:,0050.TW") + ListLine("22", "b", ""));

class ListsShow : public ToolTest {};
class ListsExport : public ToolTest {};
class ListsDiff : public ToolTest {
protected:
  int Diff(const std::string& before, const std::string& after, const std::string& option = "") {
    std::vector<std::string> words{"diff", Put("a.xml", before), Put("b.xml", after)};
    if (!option.empty())
      words.push_back(option);
    return Run(words);
  }
};

TEST_F(ListsShow, TheTableHasItsColumnsBelowEachOtherWithWideCharactersToo) {
  EXPECT_EQ(Run({"show", "-"}, kTwoLists), 0);
  EXPECT_EQ(streams.out, "Place   Name    Id  Symbols\n"
                         "    0   許功蓋  1         2\n"
                         "    1 * b       22        0\n");
}

TEST_F(ListsShow, SymbolsStandBelowTheirList) {
  EXPECT_EQ(Run({"show", "--symbols", "-"}, kTwoLists), 0);
  EXPECT_NE(streams.out.find("        2330.TW\n        ### Funds\n        0050.TW\n"),
            std::string::npos)
      << streams.out;
}

TEST_F(ListsShow, JsonIsWhatImportTakes) {
  const std::string path = Put("a.xml", kTwoLists);
  ASSERT_EQ(Run({"show", "--json", path}), 0);
  EXPECT_EQ(Run({"import", "-", "-o", "-"}, std::string(streams.out)), 0) << streams.err;
  EXPECT_EQ(streams.out, kTwoLists);
}

TEST_F(ListsShow, ControlCharactersOfANameDoNotReachTheTerminal) {
  EXPECT_EQ(Run({"show", "-"}, ListFile("utf-8", 0, ListLine("1", "a&#10;b", "x"))), 0);
  EXPECT_NE(streams.out.find("a b"), std::string::npos) << streams.out;
}

TEST_F(ListsShow, WidthsAreThoseOfATerminal) {
  EXPECT_EQ(tqlists::DisplayWidth("ab"), 2u);
  EXPECT_EQ(tqlists::DisplayWidth("許０é"), 5u);
  EXPECT_EQ(tqlists::DisplayWidth("e\xCC\x81"), 1u);
}

TEST_F(ListsExport, TextHasOneIdALineAndHeadingsMarked) {
  EXPECT_EQ(Run({"export", "-"}, kTwoLists), 0);
  EXPECT_EQ(streams.out, "# List: 許功蓋\n# Id: 1\n2330.TW\n### Funds\n0050.TW\n"
                         "\n# List: b\n# Id: 22\n# Default\n");
}

TEST_F(ListsExport, PlainTextHasNothingElse) {
  EXPECT_EQ(Run({"export", "--plain", "-"}, ListFile("utf-8", 0, ListLine("1", "a", "A,H:,B"))), 0);
  EXPECT_EQ(streams.out, "A\n### H\nB\n");
  EXPECT_EQ(Run({"export", "--plain", "-"}, kTwoLists), 2);
}

TEST_F(ListsExport, CsvIsQuotedAndItsRecordsEndAsTheyShould) {
  EXPECT_EQ(
      Run({"export", "--to", "csv", "-"}, ListFile("utf-8", 0, ListLine("1", "a,\"b\"", "A,H:"))),
      0);
  EXPECT_EQ(streams.out, "list_id,list_name,default,position,symbol,heading\r\n"
                         "\"1\",\"a,\"\"b\"\"\",yes,1,\"A\",\r\n"
                         "\"1\",\"a,\"\"b\"\"\",yes,2,,\"H\"\r\n");
}

TEST_F(ListsExport, AFileForEachListKeepsOrderAndNamesApart) {
  const std::string path = Put("a.xml", kTwoLists);
  ASSERT_EQ(Run({"export", path, "--directory", Path("lists")}), 0) << streams.err;
  ASSERT_TRUE(std::filesystem::exists(std::filesystem::u8path(Path("lists/001 許功蓋.txt"))));
  EXPECT_EQ(Get("lists/002 b.txt"), "# List: b\n# Id: 22\n# Default\n");
}

TEST_F(ListsExport, WhatAnEncodingLacksIsAFinding) {
  EXPECT_EQ(
      Run({"export", "--encoding", "big5", "-"}, ListFile("utf-8", 0, ListLine("1", "电", "A"))),
      1);
  EXPECT_NE(streams.err.find("电 (U+7535)"), std::string::npos) << streams.err;
}

TEST_F(ListsDiff, FilesWithTheSameListsDoNotDiffer) {
  EXPECT_EQ(Diff(kTwoLists, kTwoLists), 0);
  EXPECT_EQ(streams.out, "");
}

TEST_F(ListsDiff, EachKindOfDifferenceIsTold) {
  const std::string before = ListFile("utf-8", 0,
                                      ListLine("1", "a", "A,B,C") + ListLine("2", "b", "") +
                                          ListLine("3", "c", "") + ListLine("4", "d", ""));
  const std::string after = ListFile("utf-8", 1,
                                     ListLine("4", "d", "") + ListLine("1", "e", "C,A,D") +
                                         ListLine("3", "c", "") + ListLine("5", "f", ""));
  EXPECT_EQ(Diff(before, after), 1);
  EXPECT_EQ(streams.out, "removed: \"b\" 2\n"
                         "added: \"f\" 5\n"
                         "renamed: \"a\" 1 -> \"e\"\n"
                         "changed: \"e\" 1\n"
                         "  - B\n"
                         "  + D\n"
                         "  moved C from 3 to 1\n"
                         "the lists are in another order\n");
  EXPECT_EQ(Diff(before, after, "--json"), 1);
  EXPECT_NE(streams.out.find("\"otherOrder\": true"), std::string::npos) << streams.out;
}

TEST_F(ListsDiff, AnotherListShownFirstIsADifference) {
  const std::string lists = ListLine("1", "a", "") + ListLine("2", "b", "");
  EXPECT_EQ(Diff(ListFile("utf-8", 0, lists), ListFile("utf-8", 1, lists)), 1);
  EXPECT_EQ(streams.out, "shown first: 1 -> 2\n");
}

TEST_F(ListsDiff, AsFewEntriesAsPossibleCountAsMoved) {
  const tqlists::Change change =
      tqlists::CompareEntries({"1", "a", "A,B,C,D,A"}, {"1", "a", "B,C,D,A,A"});
  EXPECT_TRUE(change.added.empty());
  EXPECT_TRUE(change.removed.empty());
  ASSERT_EQ(change.moved.size(), 1u);
  EXPECT_EQ(change.moved[0].entry, "A");
  EXPECT_EQ(change.moved[0].from, 1u);
  EXPECT_EQ(change.moved[0].to, 4u);
}

} // namespace
