// Ids in a list: how a string becomes rows.
#include <cstring>
#include <string>

#include "tests/interface/ListText.h"

namespace {

using namespace listtext;

class ListTextIdsTest : public StandInTest {
protected:
  void Set(const char* ids) {
    standin::ClearCalls();
    EXPECT_EQ(list.Update1(ids), 1);
  }
  CIDList list;
};

TEST_F(ListTextIdsTest, TokensAreSplitAtEveryCommaInOrder) {
  Set("2330.TW,DIS.NYSE,6488.TE");
  EXPECT_EQ(TokensOf(list), "2330.TW|DIS.NYSE|6488.TE");
  EXPECT_EQ(RowsOf(list), "2330.TW DIS.NYSE 6488.TE");
}

TEST_F(ListTextIdsTest, ATrailingCommaMakesNoToken) {
  Set("2330.TW,");
  EXPECT_EQ(TokensOf(list), "2330.TW");
  EXPECT_EQ(list.GetCount(), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,");
}

TEST_F(ListTextIdsTest, EmptyTokensAreSkippedAndTheirNeighboursFollowEachOther) {
  Set(",2330.TW,,,2317.TW");
  EXPECT_EQ(TokensOf(list), "2330.TW|2317.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_STREQ(list.GetIDs(), ",2330.TW,,,2317.TW");
}

TEST_F(ListTextIdsTest, TheLookUpIsOneTextWithoutHeadingsAndWithoutAFinalComma) {
  Set("Chips:,2330.TW,,A:B,NOSUCH.TW,2317.TW,Tail:");
  EXPECT_EQ(Asked(), "[2330.TW,NOSUCH.TW,2317.TW]");
}

TEST_F(ListTextIdsTest, AColonInTheMiddleMakesAHeadingAsOneAtTheEndDoes) {
  Set("A:B,2330.TW,C:");
  EXPECT_EQ(list.GetCount(), 3);
  EXPECT_EQ(RowsOf(list), ": 2330.TW :");
}

TEST_F(ListTextIdsTest, AHeadingsRecordIsEmptyButForTheMarker) {
  Set("Quite a long heading of course:,2330.TW");
  SymbolInfo record;
  std::memset(&record, 0x5A, sizeof(record));
  ASSERT_TRUE(list.GetAt(0, &record));
  SymbolInfo expected = {};
  expected.id[0] = ':';
  EXPECT_EQ(std::memcmp(&record, &expected, sizeof(record)), 0);
}

TEST_F(ListTextIdsTest, TheHeadingsTextStaysInTheTokensAsItIsWritten) {
  Set("my Chips:,2330.tw");
  EXPECT_EQ(TokensOf(list), "my Chips:|2330.TW");
}

TEST_F(ListTextIdsTest, ATokenThatOnlyBeginsWithAColonIsLookedUp) {
  Set(":x,2330.TW");
  EXPECT_EQ(Asked(), "[:x,2330.TW]");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

TEST_F(ListTextIdsTest, UnknownIdsHaveNoRowAndStayInTheString) {
  Set("NOSUCH.TW,2330.TW,GONE.TE,2317.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_STREQ(list.GetIDs(), "NOSUCH.TW,2330.TW,GONE.TE,2317.TW");
}

TEST_F(ListTextIdsTest, AnIdThatStandsTwiceHasTwoRows) {
  Set("2330.TW,2317.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW 2330.TW");
}

TEST_F(ListTextIdsTest, ARowIsTheServicesRecordByteForByte) {
  Set("Head:,2317.TW");
  SymbolInfo expected = {};
  ASSERT_NE(VLGetSymbolInfo("2317.TW", &expected), 0);
  SymbolInfo record = {};
  ASSERT_TRUE(list.GetAt(1, &record));
  EXPECT_EQ(std::memcmp(&record, &expected, sizeof(record)), 0);
}

TEST_F(ListTextIdsTest, OnlyRowsFromZeroToCountMinusOneAreThere) {
  Set("2330.TW,2317.TW");
  SymbolInfo record = {};
  EXPECT_FALSE(list.GetAt(-1, &record));
  EXPECT_FALSE(list.GetAt(2, &record));
}

TEST_F(ListTextIdsTest, GetAtIsFalseWhenResolvingFails) {
  standin::FailAlways("VLGetSymbolInfos");
  Set("2330.TW");
  SymbolInfo record = {};
  EXPECT_FALSE(list.GetAt(0, &record));
  EXPECT_STREQ(list.GetIDs(), "2330.TW");
}

TEST_F(ListTextIdsTest, SettingResolvesAtOnceAndCountingDoesNotAskAgain) {
  Set("2330.TW,2317.TW");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(ListTextIdsTest, SettingTheSameTextReturnsZeroAndAsksNothing) {
  Set("2330.TW");
  standin::ClearCalls();
  EXPECT_EQ(list.Update1("2330.TW"), 0);
  EXPECT_EQ(list.IsModified(), 1);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(ListTextIdsTest, TheSameTextLeavesTheModifiedFlagOfANewListClear) {
  EXPECT_EQ(list.IsModified(), 0);
  EXPECT_EQ(list.Update1(""), 0);
  EXPECT_EQ(list.IsModified(), 0);
}

TEST_F(ListTextIdsTest, LetterCaseMakesAnotherText) {
  Set("2330.TW");
  EXPECT_EQ(list.Update1("2330.tw"), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.tw");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

TEST_F(ListTextIdsTest, AnEmptyTextHasNoRowsAndAsksForNoSymbol) {
  Set("2330.TW");
  Set("");
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetTokens().GetSize(), 0);
  for (const standin::Call& call : standin::Calls())
    EXPECT_EQ(call.arguments, "");
}

TEST_F(ListTextIdsTest, AskingAgainFindsWhatTheServiceLearnt) {
  Set("NEW.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
  standin::Market market = SmallMarket();
  market.instruments.push_back(market.instruments.front());
  market.instruments.back().code = "NEW";
  standin::SetMarket(market);
  EXPECT_EQ(RowsOf(list), "2330.TW");
  EXPECT_EQ(list.Update3(), 1);
  EXPECT_EQ(RowsOf(list), "NEW.TW 2330.TW");
  EXPECT_EQ(TokensOf(list), "NEW.TW|2330.TW");
}

TEST_F(ListTextIdsTest, AdoptedRecordsGiveTheStringAndNotTheModifiedFlag) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,6488.TE", &records, &count), 0);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(list.Update2(records, count), 1);
  EXPECT_STREQ(list.GetIDs(), "2317.TW,6488.TE");
  EXPECT_EQ(RowsOf(list), "2317.TW 6488.TE");
  EXPECT_EQ(list.IsModified(), 0);
}

TEST_F(ListTextIdsTest, AdoptingNothingEmptiesTheList) {
  Set("2330.TW");
  EXPECT_EQ(list.Update2(nullptr, 0), 1);
  EXPECT_STREQ(list.GetIDs(), "");
  EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ListTextIdsTest, TheStringIsReturnedByReference) {
  const CString& ids = list.GetIDs();
  Set("2330.TW");
  EXPECT_EQ(&ids, &list.GetIDs());
}

TEST_F(ListTextIdsTest, AnAdoptedMarkerStandsInTheStringAsItsIdField) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,6488.TE,2317.TW", &records, &count), 0);
  ASSERT_EQ(count, 3);
  std::strcpy(records[1].id, ":");
  EXPECT_EQ(list.Update2(records, count), 1);
  EXPECT_STREQ(list.GetIDs(), "2317.TW,:,2317.TW");
}

TEST_F(ListTextIdsTest, AdoptingLeavesAModifiedListModified) {
  Set("2330.TW");
  list.Update2(nullptr, 0);
  EXPECT_EQ(list.IsModified(), 1);
}

TEST_F(ListTextIdsTest, AColonBehindTheFirstCharacterMakesAHeadingWhateverTheFirstIs) {
  Set(":a:,2330.TW,::");
  EXPECT_EQ(Asked(), "[2330.TW]");
  EXPECT_EQ(RowsOf(list), ": 2330.TW :");
  EXPECT_EQ(TokensOf(list), ":a:|2330.TW|::");
}

TEST_F(ListTextIdsTest, HeadingsAloneAreRows) {
  Set("One:,Two:");
  EXPECT_EQ(RowsOf(list), ": :");
}

TEST_F(ListTextIdsTest, CommasAloneAreNoRows) {
  Set(",,,");
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetTokens().GetSize(), 0);
  EXPECT_STREQ(list.GetIDs(), ",,,");
}

TEST_F(ListTextIdsTest, ANewTextReplacesTokensAndRows) {
  Set("2330.TW,2317.TW,Head:");
  Set("6488.TE");
  EXPECT_EQ(TokensOf(list), "6488.TE");
  EXPECT_EQ(RowsOf(list), "6488.TE");
}

TEST_F(ListTextIdsTest, AskingAgainGivesBackTheServicesArrays) {
  Set("2330.TW,2317.TW");
  list.Update3();
  list.Update3();
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 3);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  EXPECT_EQ(TokensOf(list), "2330.TW|2317.TW");
}

} // namespace
