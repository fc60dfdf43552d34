// The stand-in VLProxy: exchanges and records. Numbers of packed records are compared inside
// EXPECT_TRUE because the other macros would bind references to them, which are misaligned.
#include <cstring>

#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

class SymbolService : public StandInTest {};

int GetInfos(const char* ids, Infos& infos) {
  return VLGetSymbolInfos(ids, &infos.list, &infos.count);
}

TEST_F(SymbolService, ListsExchangesInTheMarketsOrder) {
  Exchs exchanges;
  ASSERT_NE(VLGetExch(&exchanges.list, &exchanges.count, 1), 0);
  ASSERT_EQ(exchanges.count, 6);
  EXPECT_TRUE(exchanges.list[1].id == 2);
  EXPECT_STREQ(exchanges.list[1].name, "TE");
  EXPECT_TRUE(exchanges.list[5].id == 12);
  EXPECT_STREQ(exchanges.list[5].name, "AMEX");
}

TEST_F(SymbolService, AnEmptyMarketListsNoExchangeAndSucceeds) {
  standin::SetMarket({});
  Exchs exchanges;
  EXPECT_NE(VLGetExch(&exchanges.list, &exchanges.count, 1), 0);
  EXPECT_EQ(exchanges.list, nullptr);
  EXPECT_EQ(exchanges.count, 0);
}

TEST_F(SymbolService, FillsEveryFieldOfARecord) {
  SymbolInfo info;
  ASSERT_NE(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_TRUE(info.exchId == 1);
  EXPECT_STREQ(info.id, "2330.TW");
  EXPECT_STREQ(info.code, "2330");
  EXPECT_EQ(std::string(info.reserved, sizeof info.reserved), std::string(20, '\0'));
}

TEST_F(SymbolService, TheExchangesOwnCodeIsNotTheBareCodeWhereTheMarketSaysSo) {
  standin::Market market = SmallMarket();
  market.instruments.front().exchangeCode = "X-2330";
  standin::SetMarket(market);
  SymbolInfo info;
  ASSERT_NE(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_STREQ(info.id, "2330.TW");
  EXPECT_STREQ(info.code, "X-2330");
}

struct Request {
  const char* ids;
  const char* answer;
};

class SymbolServiceRequest : public StandInTest, public testing::WithParamInterface<Request> {};

TEST_P(SymbolServiceRequest, GivesOneRecordForEachKnownId) {
  Infos infos;
  ASSERT_NE(GetInfos(GetParam().ids, infos), 0);
  EXPECT_EQ(Ids(infos), GetParam().answer);
  EXPECT_EQ(infos.list == nullptr, infos.count == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Ids, SymbolServiceRequest,
    testing::Values(Request{"2330.TW", "2330.TW"}, Request{"2317.TW,2330.TW", "2317.TW 2330.TW"},
                    Request{"2330.tw,txfl6.Tf", "2330.TW TXFL6.TF"},
                    Request{"2330.TW,NOSUCH.TW,6488.TE", "2330.TW 6488.TE"},
                    Request{"2330.TW,2330.TW", "2330.TW 2330.TW"},
                    Request{",2330.TW,,2317.TW,", "2330.TW 2317.TW"},
                    Request{"BRK.B.NYSE,7777.TE,7777.TW", "BRK.B.NYSE 7777.TE 7777.TW"},
                    Request{"2330, 2330.TW,2330.TW ,2330.,.TW", ""}, Request{"", ""},
                    Request{"NOSUCH.TW", ""}, Request{":", ""},
                    Request{"1234567890123456789012345678901234567890.TW", ""},
                    // A double-byte character whose second byte looks like a lower-case letter of
                    // an id.
                    Request{"\xB3\x74"
                            "30.TW",
                            ""}));

TEST_F(SymbolService, OneExchangesRecordsComeInTheMarketsOrder) {
  Infos infos;
  ASSERT_NE(VLGetSymbolInfos2(2, -1, &infos.list, &infos.count, 0), 0);
  EXPECT_EQ(Ids(infos), "6488.TE 5483.TE 8069.TE 7777.TE");
  Attrs attrs;
  ASSERT_NE(VLGetBaseAttrs2(2, -1, &attrs.list, &attrs.count, 0, 1), 0);
  ASSERT_EQ(attrs.count, 4);
  EXPECT_STREQ(attrs.list[3].code, "7777");
  EXPECT_TRUE(attrs.list[3].usable != 0);
}

TEST_F(SymbolService, AnExchangeWithoutSymbolsIsASuccessAndAnUnlistedOneIsNot) {
  standin::Market market = SmallMarket();
  market.exchanges.push_back({20, "NEW", "", ""});
  standin::SetMarket(market);
  Attrs none;
  EXPECT_NE(VLGetBaseAttrs2(20, -1, &none.list, &none.count, 0, 1), 0);
  EXPECT_EQ(none.count, 0);
  EXPECT_EQ(none.list, nullptr);
  Attrs unlisted;
  EXPECT_EQ(VLGetBaseAttrs2(21, -1, &unlisted.list, &unlisted.count, 0, 1), 0);
  EXPECT_EQ(unlisted.list, nullptr);
}

TEST_F(SymbolService, AnExchangeThatLeavesTheMarketTakesItsSymbolsAlong) {
  standin::Market market = SmallMarket();
  market.exchanges.erase(market.exchanges.begin());
  standin::SetMarket(market);
  SymbolInfo info;
  EXPECT_EQ(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_NE(VLGetSymbolInfo("6488.TE", &info), 0);
}

TEST_F(SymbolService, AttributesGoByFullIdOrByBareCodeOnTheFirstExchangeThatListsIt) {
  Attrs attrs;
  ASSERT_NE(VLGetBaseAttrs("7777,7777.TE,8069,NOSUCH,brk.b", &attrs.list, &attrs.count, 1), 0);
  ASSERT_EQ(attrs.count, 4);
  EXPECT_STREQ(attrs.list[0].code, "7777");
  EXPECT_STREQ(attrs.list[1].code, "7777");
  EXPECT_NE(std::memcmp(&attrs.list[0], &attrs.list[1], sizeof(BaseAttr)), 0);
  EXPECT_STREQ(attrs.list[2].code, "8069");
  EXPECT_STREQ(attrs.list[3].code, "BRK.B");
}

TEST_F(SymbolService, AnInstrumentListedTwiceIsListedTwiceAndFoundOnce) {
  standin::Market market = SmallMarket();
  standin::Instrument again = market.instruments.front();
  again.nameTw = again.nameCn = "AGAIN";
  market.instruments.push_back(again);
  standin::SetMarket(market);
  Infos all;
  ASSERT_NE(VLGetSymbolInfos2(1, -1, &all.list, &all.count, 0), 0);
  EXPECT_EQ(all.count, 9);
  EXPECT_STREQ(all.list[8].name, "AGAIN");
  SymbolInfo info;
  ASSERT_NE(VLGetSymbolInfo("2330.TW", &info), 0);
  EXPECT_STRNE(info.name, "AGAIN");
}

TEST_F(SymbolService, ArraysOutliveTheirMarket) {
  Infos infos;
  ASSERT_NE(GetInfos("2330.TW", infos), 0);
  standin::SetMarket({});
  EXPECT_EQ(Ids(infos), "2330.TW");
}

TEST_F(SymbolService, RefusesNullArguments) {
  Infos infos;
  SymbolInfo info{};
  EXPECT_EQ(VLGetSymbolInfos(nullptr, &infos.list, &infos.count), 0);
  EXPECT_EQ(infos.count, 0);
  EXPECT_EQ(VLGetSymbolInfos("2330.TW", nullptr, &infos.count), 0);
  EXPECT_EQ(VLGetSymbolInfos("2330.TW", &infos.list, nullptr), 0);
  EXPECT_EQ(VLGetSymbolInfos2(1, -1, nullptr, &infos.count, 0), 0);
  EXPECT_EQ(VLGetSymbolInfo(nullptr, &info), 0);
  EXPECT_EQ(VLGetSymbolInfo("2330.TW", nullptr), 0);
  EXPECT_EQ(VLGetExch(nullptr, &infos.count, 1), 0);
  EXPECT_EQ(VLGetBaseAttrs(nullptr, nullptr, nullptr, 1), 0);
  EXPECT_EQ(VLGetBaseAttrs2(1, -1, nullptr, nullptr, 0, 1), 0);
  EXPECT_EQ(VLFindSymbol(nullptr, &infos.list, &infos.count, 0, 0, -1), 0);
}

} // namespace
