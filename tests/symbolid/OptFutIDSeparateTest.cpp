// COptFutID::SeparateID: typed combinations.
#include "tests/symbolid/CombinationTest.h"

namespace {

class OptFutIDSeparate : public CombinationTest {
protected:
  // "<leg> <side> <leg> <side>", or "error <code>" with the outputs unchanged.
  static std::string Separate(const CString& text, char side, int check) {
    COptFutID id;
    CString id1 = "one";
    CString id2 = "two";
    char side1 = '1';
    char side2 = '2';
    if (id.SeparateID(text, side, id1, side1, id2, side2, check)) {
      EXPECT_EQ(id.GetErrorCode(), 0) << text;
      return std::string(id1) + " " + side1 + " " + id2.GetString() + " " + side2;
    }
    EXPECT_STREQ(id1, "one") << text;
    EXPECT_STREQ(id2, "two") << text;
    EXPECT_TRUE(side1 == '1' && side2 == '2') << text;
    return "error " + std::to_string(id.GetErrorCode());
  }
};

struct Case {
  const char* text;
  const char* result; // with side B
};

TEST_F(OptFutIDSeparate, EveryKindOfCombinationIsSplitChecked) {
  const Case cases[] = {
      {"TXO22000/21000L6", "TXO22000L6 S TXO21000L6 B"},   // price spread of calls
      {"TXO21000/22000X6", "TXO21000X6 S TXO22000X6 B"},   // of puts
      {"TXO21000L6/A7", "TXO21000L6 S TXO21000A7 B"},      // time spread
      {"TXO21000L6/L6", "TXO21000L6 S TXO21000L6 B"},      // one month is not out of order
      {"TXO21000L6:X6", "TXO21000L6 B TXO21000X6 B"},      // straddle
      {"TXO21000X6:22000L6", "TXO21000X6 B TXO22000L6 B"}, // strangle
      {"TXO21000L6-X6", "TXO21000L6 S TXO21000X6 B"},      // reversal or conversion
      {"TXO21000L6-M7", "TXO21000L6 S TXO21000M7 B"},      // whose months are not compared
  };
  for (const auto& [text, result] : cases) {
    EXPECT_EQ(Separate(text, 'B', 1), result) << text;
    EXPECT_EQ(Separate(text, 'B', 0), result) << text;
  }
}

TEST_F(OptFutIDSeparate, EveryFaultHasItsError) {
  const Case cases[] = {
      {"", "error 1"},
      {"TXO21000L6", "error 1"},
      {"TXO22000L6/TXO21000L6", "error 100"},
      {"TXO22000/L6", "error 100"},
      {"TXO21000L6/21000L6", "error 100"},
      {"TXO21000L6/", "error 100"},
      {"TXO21000/21000L6", "error 12"},
      {"TXO21000/22000L6", "error 12"},
      {"TXO2100A/21000L6", "error 12"},
      {"TXO22000/22000X6", "error 13"},
      {"TXO22000/21000X6", "error 13"},
      {"TXO21000L6/X6", "error 103"},
      {"TXO21000L6/A8", "error 14"},
      {"TXO21000L6/K6", "error 16"},
      {"TXO21000L9/A1", "error 14"},
      {"TXO21000L6:TXO21000X6", "error 101"},
      {"TXO21000:L6", "error 101"},
      {"TXO21000L6:K6", "error 104"},
      {"TXO21000L6:W6", "error 15"},
      {"TXO21000L6:X7", "error 15"},
      {"TXO21000X6:L6", "error 17"},
      {"TXO21000L6:22000X6", "error 18"},
      {"TXO21000L6-22000X6", "error 102"},
      {"TXO21000-X6", "error 102"},
      {"TXO21000L6-K6", "error 104"},
      {"TXO21000X6-L6", "error 17"},
      {"tXO22000/21000L6", "error 3"},
      {"TXO2200\xA4/21000L6", "error 1"}, // the "/" is the second byte of a character
      {"TXO2\xB3\x5C"
       "00/21000L6",
       "error 4"},
      {"TXO22000/2100\xA4L6", "error 4"},
      {"TXO22000/21000Y6", "error 5"},
      {"TXO22000/21000LL", "error 6"},
      {"TXO21000L6/AA", "error 6"},
      {"TXO21000L6:YA", "error 5"},
  };
  for (const auto& [text, result] : cases)
    EXPECT_EQ(Separate(text, 'B', 1), result) << text;
}

TEST_F(OptFutIDSeparate, TimeSpreadsCrossADecadesEnd) {
  EXPECT_EQ(Separate("TXO21000L9/A0", 'B', 1), "TXO21000L9 S TXO21000A0 B");
  EXPECT_EQ(Separate("TXO21000A0/L9", 'B', 1), "error 16");
}

TEST_F(OptFutIDSeparate, TheSecondLegHasTheSideThatWasGiven) {
  EXPECT_EQ(Separate("TXO21000L6/A7", 'S', 1), "TXO21000L6 B TXO21000A7 S");
  EXPECT_EQ(Separate("TXO21000L6-X6", 'S', 1), "TXO21000L6 B TXO21000X6 S");
  EXPECT_EQ(Separate("TXO21000L6:X6", 'S', 1), "TXO21000L6 S TXO21000X6 S");
}

TEST_F(OptFutIDSeparate, TheOppositeOfWhatIsNoSideIsBuy) {
  EXPECT_EQ(Separate("TXO21000L6/A7", '?', 1), "TXO21000L6 B TXO21000A7 ?");
  EXPECT_EQ(Separate("TXO21000L6:X6", '?', 1), "TXO21000L6 ? TXO21000X6 ?");
}

TEST_F(OptFutIDSeparate, BlanksAroundTheTextAreIgnored) {
  EXPECT_EQ(Separate(" \tTXO21000L6/A7\r\n", 'B', 1), "TXO21000L6 S TXO21000A7 B");
  EXPECT_EQ(Separate("TXO21000L6 /A7", 'B', 1), "error 100");
}

TEST_F(OptFutIDSeparate, ASlashGoesBeforeAColonAndAColonBeforeADash) {
  EXPECT_EQ(Separate("TXO21000L6-:/A7", 'B', 1), "error 100");
  EXPECT_EQ(Separate("TXO21000L6-:X6", 'B', 1), "error 101");
  EXPECT_EQ(Separate("A-1:2/3", 'B', 0), "A-1:2 S A-1:23 B");
}

TEST_F(OptFutIDSeparate, ASeparatorThatOpensTheTextDoesNotCount) {
  EXPECT_EQ(Separate("/", 'B', 0), "error 1");
  EXPECT_EQ(Separate("/A/B", 'B', 0), "error 1");
  EXPECT_EQ(Separate("/A:B", 'B', 0), "/A B /AB B");
  EXPECT_EQ(Separate(":A-B", 'B', 0), ":A S :AB B");
}

TEST_F(OptFutIDSeparate, WithoutACheckLegsAreCompletedByTheirLengths) {
  const Case cases[] = {
      {"TXO21000/22000L6", "TXO21000L6 S TXO22000L6 B"},   // would be refused
      {"TXO21000L6/22000L6", "TXO21000L6 S TXO22000L6 B"}, // has its month already
      {"TXO21000/TXO22000L6", "TXO21000L6 S TXO21000TXO22000L6 B"},
      {"TXO21000L6:", "TXO21000L6 B TXO21000 B"},
      {"11-A", "11A S 11AA B"},
      {"1-A", "1 S 1A B"},
      {"A-1234567", "A S A1234567 B"},
  };
  for (const auto& [text, result] : cases)
    EXPECT_EQ(Separate(text, 'B', 0), result) << text;
}

TEST_F(OptFutIDSeparate, AnOutputMayBeTheTextItself) {
  CString text = "TXO22000/21000L6";
  CString other;
  char side = 'B';
  char side1 = ' ';
  COptFutID id;
  EXPECT_EQ(id.SeparateID(text, side, text, side1, other, side, 1), 1);
  EXPECT_STREQ(text, "TXO22000L6");
  EXPECT_STREQ(other, "TXO21000L6");
  EXPECT_EQ(side1, 'S');
}

TEST_F(OptFutIDSeparate, AsksNothingOfTheService) {
  standin::ClearCalls();
  Separate("TXO22000/21000L6", 'B', 1);
  EXPECT_TRUE(standin::Calls().empty());
}

} // namespace
