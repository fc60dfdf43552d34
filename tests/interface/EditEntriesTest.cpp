// Editing the entries of one list.
#include <string>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class EditEntriesTest : public EditTest {};

constexpr int kBehind = 0;
constexpr int kBefore = 1;
constexpr int kSymbol = 0;
constexpr int kHeading = 1;

TEST_F(EditEntriesTest, RemovingAnEntryTakesItsTokenAndItsRecord) {
  StartWith({"a/A/2330.TW,Head:,2317.TW"});
  EXPECT_EQ(manager.DeleteSymbolList("A", 1), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW");
  EXPECT_EQ(Rows("a"), "2330.TW 2317.TW");
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Shape(), "a/A/");
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 0);
}

TEST_F(EditEntriesTest, EntriesOutOfRangeAndUnknownListsAreRefused) {
  StartWith({"a/A/2330.TW,2317.TW"});
  for (int entry : {-2147483647 - 1, -1, 2, 2147483647}) {
    EXPECT_EQ(manager.DeleteSymbolList("a", entry), 0);
    EXPECT_EQ(manager.SwapSymbolList("a", 0, entry), 0);
    EXPECT_EQ(manager.SwapSymbolList("a", entry, 1), 0);
    EXPECT_EQ(manager.ReplaceSymbolList("a", entry, "2454.TW"), 0);
  }
  EXPECT_EQ(manager.DeleteSymbolList("b", 0), 0);
  EXPECT_EQ(manager.SwapSymbolList("b", 0, 1), 0);
  EXPECT_EQ(manager.ReplaceSymbolList("b", 0, "2454.TW"), 0);
  EXPECT_EQ(manager.InsertSymbolList("b", 0, "2454.TW", 0, 0), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW");
}

TEST_F(EditEntriesTest, EntryEditsSaveNothingAndTellNobody) {
  StartWith({"a/A/2330.TW,2317.TW"});
  const std::string file = ReadWorking();
  manager.DeleteSymbolList("a", 0);
  manager.InsertSymbolList("a", 0, "2454.TW", kBehind, kSymbol);
  manager.SwapSymbolList("a", 0, 1);
  manager.ReplaceSymbolList("a", 0, "2330.TW");
  EXPECT_EQ(ReadWorking(), file);
  ExpectNotNotified();
}

TEST_F(EditEntriesTest, SwappingExchangesTwoEntriesAndAnEntryWithItselfDoesNothing) {
  StartWith({"a/A/2330.TW,Head:,2317.TW"});
  EXPECT_EQ(manager.SwapSymbolList("a", 1, 1), 0);
  EXPECT_EQ(manager.SwapSymbolList("a", 1, 2), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW,Head:");
  EXPECT_EQ(Rows("a"), "2330.TW 2317.TW :");
  EXPECT_EQ(manager.SwapSymbolList("a", 2, 0), 1);
  EXPECT_EQ(Shape(), "a/A/Head:,2317.TW,2330.TW");
}

TEST_F(EditEntriesTest, InsertingBehindAndBeforeAnEntry) {
  StartWith({"a/A/2330.TW,2317.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2454.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(Rows("a"), "2330.TW 2454.TW 2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "1101.TW", kBefore, kSymbol), 1);
  EXPECT_EQ(Rows("a"), "1101.TW 2330.TW 2454.TW 2317.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 3, "Tail", kBehind, kHeading), 1);
  EXPECT_EQ(Shape(), "a/A/1101.TW,2330.TW,2454.TW,2317.TW,Tail:");
}

TEST_F(EditEntriesTest, InsertPositionsOutsideAreTheStartAndTheEnd) {
  StartWith({"a/A/2330.TW", "e/E/"});
  EXPECT_EQ(manager.InsertSymbolList("a", -5, "2317.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(manager.InsertSymbolList("a", 99, "2454.TW", kBefore, kSymbol), 1);
  EXPECT_EQ(Shape().substr(0, 27), "a/A/2317.TW,2330.TW,2454.TW");
  EXPECT_EQ(manager.InsertSymbolList("e", 0, "2330.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(Rows("e"), "2330.TW");
}

TEST_F(EditEntriesTest, HeadingGetsItsColonAndMayRepeat) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "\xB3\x5C", kBefore, kHeading), 1);
  EXPECT_EQ(manager.InsertSymbolList("a", 1, "\xB3\x5C", kBehind, kHeading), 1);
  EXPECT_EQ(Shape(), "a/A/\xB3\x5C:,2330.TW,\xB3\x5C:");
  EXPECT_EQ(Rows("a"), ": 2330.TW :");
}

TEST_F(EditEntriesTest, SymbolThatTheListHoldsIsRefused) {
  StartWith({"a/A/2330.TW,GONE.TW"});
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2330.tw", kBehind, kSymbol), 0);
  EXPECT_EQ(manager.InsertSymbolList("a", 0, " GONE.TW ", kBehind, kSymbol), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,GONE.TW");
}

TEST_F(EditEntriesTest, TextThatIsNoSingleEntryIsRefused) {
  StartWith({"a/A/2330.TW"});
  for (const char* text : {"", ",", "2317.TW,2454.TW"}) {
    EXPECT_EQ(manager.InsertSymbolList("a", 0, text, kBehind, kSymbol), 0) << text;
    EXPECT_EQ(manager.InsertSymbolList("a", 0, text, kBehind, kHeading), 0) << text;
    EXPECT_EQ(manager.ReplaceSymbolList("a", 0, text), 0) << text;
  }
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

TEST_F(EditEntriesTest, ReplacingPutsTheTextInTheEntrysPlace) {
  StartWith({"a/A/2330.TW,Head:,2317.TW"});
  EXPECT_EQ(manager.ReplaceSymbolList("a", 0, "2454.TW"), 1);
  EXPECT_EQ(manager.ReplaceSymbolList("a", 1, "Other:"), 1);
  EXPECT_EQ(manager.ReplaceSymbolList("a", 2, "UNKNOWN.TW"), 1);
  EXPECT_EQ(Shape(), "a/A/2454.TW,Other:,UNKNOWN.TW");
  EXPECT_EQ(Rows("a"), "2454.TW :");
}

TEST_F(EditEntriesTest, UnknownIdsKeepTheirPlacesThroughEveryEdit) {
  StartWith({"a/A/GONE1.TW,Head:,2330.TW,GONE2.TW,2317.TW"});
  EXPECT_EQ(manager.SwapSymbolList("a", 1, 2), 1);
  EXPECT_EQ(Shape(), "a/A/GONE1.TW,Head:,2317.TW,GONE2.TW,2330.TW");
  EXPECT_EQ(manager.DeleteSymbolList("a", 0), 1);
  EXPECT_EQ(Shape(), "a/A/GONE1.TW,2317.TW,GONE2.TW,2330.TW");
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2454.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(Shape(), "a/A/GONE1.TW,2317.TW,2454.TW,GONE2.TW,2330.TW");
  EXPECT_EQ(manager.ReplaceSymbolList("a", 2, "1101.TW"), 1);
  EXPECT_EQ(Shape(), "a/A/GONE1.TW,2317.TW,2454.TW,GONE2.TW,1101.TW");
  EXPECT_EQ(Rows("a"), "2317.TW 2454.TW 1101.TW");
}

TEST_F(EditEntriesTest, ServiceFailingDuringAnEditLosesNothing) {
  StartWith({"a/A/2330.TW,2317.TW"});
  standin::FailCall("VLGetSymbolInfos", 1);
  EXPECT_EQ(manager.InsertSymbolList("a", 0, "2454.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2454.TW,2317.TW");
  EXPECT_EQ(Rows("a"), "2330.TW 2454.TW 2317.TW");
}

TEST_F(EditEntriesTest, HundredThousandEntriesCanBeEdited) {
  std::string ids = "Head:";
  for (int i = 0; i < 100000; ++i)
    ids += i % 2 == 0 ? ",2330.TW" : ",2317.TW";
  StartWith({"a/A/" + ids});
  EXPECT_EQ(manager.GetTQSymbolCount("a", 1), 100001);
  EXPECT_EQ(manager.SwapSymbolList("a", 1, 100000), 1);
  EXPECT_EQ(manager.DeleteSymbolList("a", 50000), 1);
  EXPECT_EQ(manager.InsertSymbolList("a", 100000, "2454.TW", kBehind, kSymbol), 1);
  EXPECT_EQ(manager.GetTQSymbolCount("a", 1), 100001);
}

} // namespace
