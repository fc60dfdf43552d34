// COptFutID::MergeID and MergeID2: descriptions of option combinations.
#include "tests/symbolid/CombinationTest.h"

#include "platform/framework/CUIntArray.h"
#include "symboltable/SymbolTableMgr.h"

namespace {

// The text and the side, or "error <code>" with both unchanged.
std::string Answer(const COptFutID& id, int merged, const CString& text, char side) {
  if (merged)
    return std::string(text) + "|" + side;
  EXPECT_STREQ(text, "before");
  EXPECT_EQ(side, '?');
  return "error " + std::to_string(id.GetErrorCode());
}

class OptFutIDMerge : public CombinationTest {
protected:
  static std::string Merge(const CString& id1, char side1, const CString& id2, char side2,
                           int check) {
    COptFutID id;
    CString text = "before";
    char side = '?';
    const int merged = id.MergeID(text, side, id1, side1, id2, side2, check);
    return Answer(id, merged, text, side);
  }

  static std::string Merge2(const CString& id1, char side1, const CString& id2, char side2,
                            int check, CSymbolTableMgr* tables) {
    COptFutID id;
    CString text = "before";
    char side = '?';
    const int merged = id.MergeID2(text, side, id1, side1, id2, side2, check, tables);
    return Answer(id, merged, text, side);
  }

  static void ListWithShortName(const char* code) {
    List(code, {{ExtAttrShortName, "V5=TX;V6=1"}});
  }
};

TEST_F(OptFutIDMerge, EveryKindOfCombinationHasItsForm) {
  const struct {
    const char* id1;
    char side1;
    const char* id2;
    char side2;
    const char* text;
  } cases[] = {
      {"TXO22000L6", 'S', "TXO21000L6", 'B', "TXO 202612 S 22000 CALL - B 21000 CALL|B"},
      {"TXO21000X6", 'B', "TXO22000X6", 'S', "TXO 202612 B 21000 PUT - S 22000 PUT|S"},
      {"TXO21000L6", 'S', "TXO21000A7", 'B', "TXO CALL S 202612 - B 202701|B"},
      {"TXO21000W6", 'B', "TXO21000X6", 'S', "TXO PUT B 202611 - S 202612|S"},
      {"TXO21000L6", 'B', "TXO21000X6", 'B', "TXO 202612 21000 B CALL - B PUT|B"},
      {"TXO21000L6", 'B', "TXO21000X6", 'S', "TXO 202612 21000 B CALL - S PUT|S"},
      {"TXO22000X6", 'S', "TXO21000L6", 'S', "TXO 202612 S 22000 PUT - S 21000 CALL|S"},
  };
  for (const auto& [id1, side1, id2, side2, text] : cases)
    for (const int check : {0, 1})
      EXPECT_EQ(Merge(id1, side1, id2, side2, check), text);
}

TEST_F(OptFutIDMerge, StrikesAreWrittenWithoutLeadingZeros) {
  EXPECT_EQ(Merge("TXO00600L6", 'S', "TXO00050L6", 'B', 1), "TXO 202612 S 600 CALL - B 50 CALL|B");
  EXPECT_EQ(Merge("TXO00001L6", 'S', "TXO00000L6", 'B', 1), "TXO 202612 S 1 CALL - B 0 CALL|B");
}

TEST_F(OptFutIDMerge, LegsOfTwoCommoditiesAreRefusedWithOrWithoutACheck) {
  for (const int check : {0, 1})
    EXPECT_EQ(Merge("TXO22000L6", 'S', "TEO21000L6", 'B', check), "error 19");
}

TEST_F(OptFutIDMerge, ACheckRefusesWhatIsNoCombination) {
  EXPECT_EQ(Merge("TXO2200L6", 'S', "TXO21000L6", 'B', 1), "error 0"); // of no right length
  EXPECT_EQ(Merge("TXO22000Y6", 'S', "TXO21000L6", 'B', 1), "error 5");
  EXPECT_EQ(Merge("TXO22000L6", 'S', "TXO21000LL", 'B', 1), "error 6");
  EXPECT_EQ(Merge("TXO22000L6", 's', "TXO21000L6", 'B', 1), "error 8");
  EXPECT_EQ(Merge("TXO22000L6", 'B', "TXO21000L6", 'B', 1), "error 9");
}

TEST_F(OptFutIDMerge, WithoutACheckAnyTwoLegsAreDescribed) {
  EXPECT_EQ(Merge("TXO21000L6", 'B', "TXO22000L6", 'B', 0),
            "TXO 202612 B 21000 CALL - B 22000 CALL|B");
  EXPECT_EQ(Merge("TXO21000L6", 'B', "TXO22000W6", 'S', 0), "TXO 202612 21000 B CALL - S PUT|S");
  EXPECT_EQ(Merge("TXO21000Y6", 'x', "TXO22000Y6", 'y', 0), "TXO 202600 x 21000  - y 22000 |y");
  EXPECT_EQ(Merge("", 'B', "", 'S', 0), " 202700 B   - S  |S");
}

TEST_F(OptFutIDMerge, TheDigitOfTheYearMeansThisYearOrTheNext) {
  EXPECT_EQ(Merge("TXO21000L6", 'S', "TXO21000A7", 'B', 0), "TXO CALL S 202612 - B 202701|B");
  EXPECT_EQ(Merge("TXO21000L5", 'S', "TXO21000A0", 'B', 0), "TXO CALL S 202712 - B 202701|B");
  LiveIn(2029);
  EXPECT_EQ(Merge("TXO21000L9", 'S', "TXO21000A0", 'B', 1), "TXO CALL S 202912 - B 203001|B");
  LiveIn(2030);
  EXPECT_EQ(Merge("TXO21000L9", 'S', "TXO21000A0", 'B', 0), "TXO CALL S 203112 - B 203001|B");
}

TEST_F(OptFutIDMerge, BlanksAroundIdsAreIgnoredInTheOneFormAlone) {
  EXPECT_EQ(Merge(" TXO22000L6", 'S', "TXO21000L6 ", 'B', 1), "error 19");
  EXPECT_EQ(Merge2(" TXO22000L6", 'S', "TXO21000L6 ", 'B', 1, nullptr),
            "TXO S 202612 22000 CALL - B 202612 21000 CALL|B");
}

TEST_F(OptFutIDMerge, TheOneFormIsThatOfAllCombinations) {
  EXPECT_EQ(Merge2("TXO21000L6", 'S', "TXO21000A7", 'B', 1, nullptr),
            "TXO S 202612 21000 CALL - B 202701 21000 CALL|B");
  EXPECT_EQ(Merge2("TXO00500L6", 'B', "TXO00500X6", 'S', 1, nullptr),
            "TXO B 202612 500 CALL - S 202612 500 PUT|S");
}

TEST_F(OptFutIDMerge, TheOneFormIsCheckedAlike) {
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TEO21000L6", 'B', 0, nullptr), "error 19");
  EXPECT_EQ(Merge2("TXO22000L6", 'B', "TXO21000L6", 'B', 1, nullptr), "error 9");
}

TEST_F(OptFutIDMerge, WithoutACheckTheKindsAreLeftOutAndTheirBlanksStay) {
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 0, nullptr),
            "TXO S 202612 22000  - B 202612 21000 |B");
}

TEST_F(OptFutIDMerge, LegsThatTheTablesKnowHaveExchangeAndShortName) {
  ListWithShortName("TXO22000L6");
  CSymbolTableMgr tables;
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  // The second leg has no short name; its exchange is written nevertheless.
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 1, &tables),
            "TXO S 202612TF TX1 22000 CALL - B 202612TF 21000 CALL|B");
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 0, &tables),
            "TXO S 202612TF TX1 22000  - B 202612TF 21000 |B");
}

TEST_F(OptFutIDMerge, LegsThatTheServiceDoesNotKnowHaveNone) {
  CSymbolTableMgr tables;
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(Merge2("TXO23000L6", 'S', "TXO22500L6", 'B', 1, &tables),
            "TXO S 202612 23000 CALL - B 202612 22500 CALL|B");
}

TEST_F(OptFutIDMerge, WithoutTablesTheServiceIsNotAskedForNames) {
  ListWithShortName("TXO22000L6");
  standin::ClearCalls();
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 0, nullptr),
            "TXO S 202612 22000  - B 202612 21000 |B");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(OptFutIDMerge, ShortNamesThatCannotBeReadAreLeftOut) {
  ListWithShortName("TXO22000L6");
  CSymbolTableMgr tables;
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  for (const char* operation : {"VLGetExtendAttr", "CStockKey::ParseExtAttr"}) {
    standin::FailAlways(operation);
    EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 1, &tables),
              "TXO S 202612TF 22000 CALL - B 202612TF 21000 CALL|B");
    standin::FailCall(operation, 0);
  }
  standin::FailAlways("VLGetZUID");
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 1, &tables),
            "TXO S 202612 22000 CALL - B 202612 21000 CALL|B");
}

TEST_F(OptFutIDMerge, TablesWithoutTheLegLeaveTheExchangeOut) {
  ListWithShortName("TXO22000L6");
  CSymbolTableMgr tables;
  EXPECT_EQ(Merge2("TXO22000L6", 'S', "TXO21000L6", 'B', 1, &tables),
            "TXO S 202612 TX1 22000 CALL - B 202612 21000 CALL|B");
}

TEST_F(OptFutIDMerge, OutputsMayBeTheInputs) {
  CString text = "TXO22000L6";
  char side = 'S';
  COptFutID id;
  EXPECT_EQ(id.MergeID(text, side, text, side, "TXO21000L6", 'B', 1), 1);
  EXPECT_STREQ(text, "TXO 202612 S 22000 CALL - B 21000 CALL");
  text = "TXO22000L6";
  EXPECT_EQ(id.MergeID2(text, side, text, 'S', "TXO21000L6", side, 1, nullptr), 1);
  EXPECT_STREQ(text, "TXO S 202612 22000 CALL - B 202612 21000 CALL");
  EXPECT_EQ(side, 'B');
}

} // namespace
