#include "idlist/IDList.h"

#include <cstring>
#include <string>

#include "symbollist/SymbolList.h"
#include "terminal/StandIn.h"
#include "tests/support/ListRows.h"
#include "tests/support/StandInTest.h"

namespace {

class IDListTest : public StandInTest {};

TEST_F(IDListTest, FreshListIsEmptyAndAsksNothing) {
  CIDList list;
  SymbolInfo record;
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_FALSE(list.GetAt(0, &record));
  EXPECT_STREQ(list.GetIDs(), "");
  EXPECT_EQ(list.IsModified(), 0);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(IDListTest, SettingIdsResolvesThemAtOnce) {
  CIDList list;
  EXPECT_EQ(list.Update1("2330.TW,2317.TW"), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(list.IsModified(), 1);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(IDListTest, RecordsAreTheServicesByteForByte) {
  CIDList list;
  list.Update1("2330.TW");
  SymbolInfo* expected = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2330.TW", &expected, &count), 0);
  ASSERT_EQ(count, 1);
  SymbolInfo record;
  ASSERT_TRUE(list.GetAt(0, &record));
  EXPECT_EQ(std::memcmp(&record, expected, sizeof(record)), 0);
  VLFree(expected);
}

TEST_F(IDListTest, EmptyStringGivesNoRowsAndNoServiceCall) {
  CIDList list;
  EXPECT_EQ(list.Update1(""), 0);
  EXPECT_EQ(list.GetCount(), 0);
  list.Update1("2330.TW");
  standin::ClearCalls();
  EXPECT_EQ(list.Update1(""), 1);
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(IDListTest, TwoCommasInARowProduceNoEmptyEntry) {
  CIDList list;
  list.Update1("2330.TW,,2317.TW,");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
  ASSERT_EQ(list.GetTokens().GetSize(), 2);
  EXPECT_STREQ(list.GetTokens()[1], "2317.TW");
  EXPECT_STREQ(list.GetIDs(), "2330.TW,,2317.TW,");
}

TEST_F(IDListTest, UnknownIdStaysInTheStringWithoutARow) {
  CIDList list;
  list.Update1("2330.TW,NOSUCH.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
  EXPECT_STREQ(list.GetIDs(), "2330.TW,NOSUCH.TW");
  EXPECT_EQ(list.GetTokens().GetSize(), 2);
}

TEST_F(IDListTest, UnknownIdsInFrontCostNoKnownIdItsRow) {
  CIDList list;
  list.Update1("NO1.TW,NO2.TW,2330.TW,NO3.TW,2317.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW");
}

TEST_F(IDListTest, OnlyUnknownIdsAreAskedForOnce) {
  CIDList list;
  list.Update1("NO1.TW,NO2.TW");
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(IDListTest, HeadingTakesARowThatCarriesOnlyTheMarker) {
  CIDList list;
  list.Update1("Chips:,2330.TW,Assembly:,2317.TW");
  EXPECT_EQ(RowsOf(list), ": 2330.TW : 2317.TW");
  SymbolInfo heading;
  ASSERT_TRUE(list.GetAt(2, &heading));
  SymbolInfo marker = {};
  marker.id[0] = ':';
  EXPECT_EQ(std::memcmp(&heading, &marker, sizeof(heading)), 0);
  EXPECT_STREQ(list.GetTokens()[0], "Chips:");
  EXPECT_STREQ(list.GetTokens()[2], "Assembly:");
}

TEST_F(IDListTest, HeadingsAreNotAskedForAndAloneCauseNoCall) {
  CIDList list;
  list.Update1("A:,2330.TW,B:");
  ASSERT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(standin::Calls().back().arguments.find("A:"), std::string::npos);
  standin::ClearCalls();
  list.Update1("A:,B:");
  EXPECT_EQ(RowsOf(list), ": :");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(IDListTest, ColonAsFirstCharacterIsAnIdLikeAnyOther) {
  CIDList list;
  list.Update1(":,:x,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
}

TEST_F(IDListTest, SettingTheSameStringAgainChangesNothing) {
  CIDList list;
  list.Update1("2330.TW");
  const int modified = list.IsModified();
  standin::ClearCalls();
  EXPECT_EQ(list.Update1("2330.TW"), 0);
  EXPECT_EQ(list.IsModified(), modified);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(IDListTest, LetterCaseAndBlanksOfIdsDoNotMatter) {
  CIDList list;
  list.Update1("2330.tw,txo21000l6.tf");
  standin::ClearCalls();
  EXPECT_EQ(RowsOf(list).substr(0, 7), "2330.TW");
  EXPECT_STREQ(list.GetTokens()[0], "2330.TW");
  EXPECT_STREQ(list.GetIDs(), "2330.tw,txo21000l6.tf");
}

TEST_F(IDListTest, TokensBehindTheLastRowAreNormalisedToo) {
  CIDList list;
  list.Update1("2330.TW,gone.tw");
  EXPECT_STREQ(list.GetTokens()[1], "GONE.TW");
}

TEST_F(IDListTest, RepeatedIdsKeepTheirRows) {
  CIDList list;
  list.Update1("2330.TW,2317.TW,2330.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW 2317.TW 2330.TW 2330.TW");
}

TEST_F(IDListTest, FailedLookupLeavesNoRowsAndIsTriedAgain) {
  CIDList list;
  standin::FailCall("VLGetSymbolInfos", 1);
  EXPECT_EQ(list.Update1("2330.TW,Head:"), 1);
  SymbolInfo record;
  standin::FailCall("VLGetSymbolInfos", 1);
  EXPECT_FALSE(list.GetAt(0, &record));
  standin::FailCall("VLGetSymbolInfos", 1);
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,Head:");
  EXPECT_EQ(RowsOf(list), "2330.TW :");
}

TEST_F(IDListTest, OutOfRangeIndexesAndNullAreRefused) {
  CIDList list;
  list.Update1("2330.TW");
  SymbolInfo record = {};
  record.id[0] = '#';
  EXPECT_FALSE(list.GetAt(-1, &record));
  EXPECT_FALSE(list.GetAt(1, &record));
  EXPECT_FALSE(list.GetAt(0, nullptr));
  EXPECT_EQ(record.id[0], '#');
}

TEST_F(IDListTest, Update3AsksTheServiceAgain) {
  CIDList list;
  list.Update1("2330.TW,NEW1.TW");
  EXPECT_EQ(RowsOf(list), "2330.TW");
  standin::Market market = standin::CurrentMarket();
  standin::Instrument added = market.instruments.front();
  added.exchId = market.exchanges.front().id;
  added.code = "NEW1";
  market.instruments.push_back(added);
  standin::SetMarket(market);
  EXPECT_EQ(RowsOf(list), "2330.TW");
  EXPECT_EQ(list.Update3(), 1);
  EXPECT_EQ(RowsOf(list), "2330.TW NEW1.TW");
}

TEST_F(IDListTest, Update2TakesTheServicesArrayOverAndReleasesIt) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,2330.TW", &records, &count), 0);
  CIDList list;
  EXPECT_EQ(list.Update2(records, count), 1);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
  EXPECT_STREQ(list.GetIDs(), "2317.TW,2330.TW");
  EXPECT_EQ(RowsOf(list), "2317.TW 2330.TW");
  EXPECT_EQ(list.GetTokens().GetSize(), 2);
  EXPECT_EQ(list.IsModified(), 0);
  EXPECT_EQ(list.Update2(nullptr, 0), 1);
  EXPECT_STREQ(list.GetIDs(), "");
  EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(IDListTest, AListMadeOfRecordsAsksAgainAfterAFailedLookUp) {
  SymbolInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSymbolInfos("2317.TW,2330.TW", &records, &count), 0);
  CIDList list;
  list.Update2(records, count);
  standin::FailCall("VLGetSymbolInfos", 1);
  list.Update3();
  EXPECT_EQ(RowsOf(list), "2317.TW 2330.TW");
}

TEST_F(IDListTest, CopyHasItsOwnRecordsAndAsksNothing) {
  CIDList list;
  list.Update1("2330.TW,Head:,NOSUCH.TW");
  standin::ClearCalls();
  CIDList copy(list);
  list.Update1("2317.TW");
  standin::ClearCalls();
  EXPECT_EQ(RowsOf(copy), "2330.TW :");
  EXPECT_STREQ(copy.GetIDs(), "2330.TW,Head:,NOSUCH.TW");
  EXPECT_EQ(copy.GetTokens().GetSize(), 3);
  EXPECT_EQ(copy.IsModified(), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(IDListTest, HundredThousandIdsResolveInOrder) {
  constexpr int kIds = 100000;
  std::string ids;
  for (int i = 0; i < kIds; ++i)
    ids += i % 3 == 0 ? "2330.TW," : i % 3 == 1 ? "2317.TW," : "GONE.TW,";
  CIDList list;
  list.Update1(ids.c_str());
  ASSERT_EQ(list.GetCount(), 66667);
  SymbolInfo record;
  ASSERT_TRUE(list.GetAt(66666, &record));
  EXPECT_STREQ(record.id, "2330.TW");
  EXPECT_EQ(list.GetTokens().GetSize(), kIds);
}

} // namespace
