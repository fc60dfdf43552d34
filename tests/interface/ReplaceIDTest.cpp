// ReplaceID: texts replaced in the id strings of all lists.
#include "tests/interface/WholeListsTest.h"

namespace {

TEST_F(WholeListsTest, ReplacingIdsWorksOnPlainTextInEveryListAndTellsOnce) {
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

TEST_F(WholeListsTest, AnIdThatBeginsALongerOneChangesThatToo) {
  StartWith({"a/A/TXF,TXFL6.TF"});
  CStringArray from;
  CStringArray to;
  from.Add("TXF");
  to.Add("MXF");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/MXF,MXFL6.TF");
  EXPECT_EQ(Rows("a"), "MXFL6.TF");
}

TEST_F(WholeListsTest, IdsAreReplacedInTurnAndLetterCaseCounts) {
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

TEST_F(WholeListsTest, ReplacingNothingNeitherSavesNorTells) {
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

// Symptom: each pair doubles a text of two bytes; after 28 pairs the list had 536 MB, and a few
// more ended the process.
TEST_F(WholeListsTest, ReplacingThatNoFileCouldHoldIsRefused) {
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

TEST_F(WholeListsTest, ReplacingIsBoundedForAllListsTogether) {
  StartWith({"a/A/aaaaaaaa", "b/B/aaaaaaaa", "c/C/aaaaaaaa"});
  CStringArray from;
  CStringArray to;
  from.Add("aaaaaaaa"); // to 3 MiB
  to.Add(CString('b', 3 << 20));
  from.Add("b"); // eight times that fits into the file, three lists of it do not
  to.Add("cccccccc");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 0);
  EXPECT_EQ(Shape(), "a/A/aaaaaaaa|b/B/aaaaaaaa|c/C/aaaaaaaa");
}

TEST_F(WholeListsTest, OldTextsAreReplacedOverTheCommasToo) {
  StartWith({"a/A/2330.TW,2317.TW"});
  CStringArray from;
  CStringArray to;
  from.Add("TW,23");
  to.Add("TE,64");
  EXPECT_EQ(manager.ReplaceID(&from, &to), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TE,6417.TW");
}

} // namespace
