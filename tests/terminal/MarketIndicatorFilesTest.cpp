// LoadMarket: the info tables.
#include <set>

#include "platform/services/tqCommon.h"
#include "platform/services/tqStockFields.h"
#include "tests/terminal/MarketFilesTest.h"

namespace {

const std::string kIndicators =
    "type\tregion_tw\tregion_cn\tcategory_tw\tcategory_cn\tcode\tname_tw\tname_cn\tmarket\n";

std::string Indicator(const std::string& rest, const std::string& texts = "r\tr\tc\tc") {
  return kIndicators + "8\t" + texts + "\t" + rest + "\n";
}

TEST_F(MarketFiles, ReadsIndicators) {
  directory.Write("indicators.tsv", kIndicators + "8\t台灣\t台湾\t物價\t物价\tCPI\t指數\t指数\t-\n"
                                                  "11\t-\t-\t-\t-\tCL\t原油\t原油\tNYMEX\n"
                                                  "10\tr\tr\tc\tc\tX\t-\t-\t-\n");
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(market.indicators.size(), 3u);
  EXPECT_EQ(market.indicators[0].type, 8);
  EXPECT_EQ(market.indicators[0].regionTw, "台灣");
  EXPECT_EQ(market.indicators[0].regionCn, "台湾");
  EXPECT_EQ(market.indicators[0].categoryTw, "物價");
  EXPECT_EQ(market.indicators[0].categoryCn, "物价");
  EXPECT_EQ(market.indicators[0].code, "CPI");
  EXPECT_EQ(market.indicators[0].nameTw, "指數");
  EXPECT_EQ(market.indicators[0].nameCn, "指数");
  EXPECT_EQ(market.indicators[0].market, "");
  EXPECT_EQ(market.indicators[1].regionTw, "");
  EXPECT_EQ(market.indicators[1].market, "NYMEX");
  EXPECT_EQ(market.indicators[2].nameCn, "");
}

TEST_F(MarketFiles, NeedsNoIndicators) {
  ASSERT_TRUE(Load()) << error;
  EXPECT_TRUE(market.indicators.empty());
}

TEST_F(MarketFiles, TakesACodeOncePerTable) {
  directory.Write("indicators.tsv", Indicator("X\tn\tn\t-") + "9\tr\tr\tc\tc\tX\tn\tn\t-\n");
  ASSERT_TRUE(Load()) << error;
  EXPECT_EQ(market.indicators.size(), 2u);
}

TEST_F(MarketFiles, TheSampleMarketHasTheTablesThatAreSearched) {
  ASSERT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
  std::set<std::string> regions, categories;
  int withoutName = 0, withMarket = 0;
  std::set<int> types;
  for (const standin::Indicator& one : market.indicators) {
    types.insert(one.type);
    regions.insert(one.regionTw);
    categories.insert(one.categoryTw);
    withoutName += one.nameTw.empty() ? 1 : 0;
    withMarket += one.market.empty() ? 0 : 1;
  }
  EXPECT_EQ(types,
            (std::set<int>{InfoEconomicIndicators, InfoCommodities, InfoInternationalFutures}));
  EXPECT_GT(regions.size(), 3u);
  EXPECT_GT(categories.size(), 3u);
  EXPECT_EQ(withoutName, 1);
  EXPECT_GT(withMarket, 20);
}

// A process has one code page, so each run checks the texts of its own language.
TEST_F(MarketFiles, TheSampleIndicatorsExistInTheCodePage) {
  ASSERT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
  const bool traditional = IsTraditionChinese() != 0;
  for (const standin::Indicator& one : market.indicators) {
    for (const std::string& text :
         {traditional ? one.regionTw : one.regionCn, traditional ? one.categoryTw : one.categoryCn,
          traditional ? one.nameTw : one.nameCn})
      EXPECT_EQ(standin::FromAnsi(standin::ToAnsi(text)), text);
  }
}

const BadFile kBadIndicators[] = {
    {"header", "indicators.tsv", "type\n", "indicators.tsv:1: the header"},
    {"too few fields", "indicators.tsv", kIndicators + "8\tr\n",
     "indicators.tsv:2: 9 fields expected, found 2"},
    {"type no number", "indicators.tsv", kIndicators + "x\tr\tr\tc\tc\tX\tn\tn\t-\n",
     "indicators.tsv:2: the type"},
    {"negative type", "indicators.tsv", kIndicators + "-1\tr\tr\tc\tc\tX\tn\tn\t-\n",
     "indicators.tsv:2: the type"},
    {"region in one language", "indicators.tsv", Indicator("X\tn\tn\t-", "r\t-\tc\tc"),
     "indicators.tsv:2: a text is missing"},
    {"category in one language", "indicators.tsv", Indicator("X\tn\tn\t-", "r\tr\t-\tc"),
     "indicators.tsv:2: a text is missing"},
    {"empty region", "indicators.tsv", Indicator("X\tn\tn\t-", "\t\tc\tc"),
     "indicators.tsv:2: a text is missing"},
    {"name in one language", "indicators.tsv", Indicator("X\tn\t-\t-"),
     "indicators.tsv:2: a text is missing"},
    {"no code", "indicators.tsv", Indicator("\tn\tn\t-"), "indicators.tsv:2: the code is"},
    {"code none", "indicators.tsv", Indicator("-\tn\tn\t-"), "indicators.tsv:2: the code is"},
    {"long code", "indicators.tsv", Indicator(std::string(32, 'X') + "\tn\tn\t-"),
     "indicators.tsv:2: the code is"},
    {"code in Chinese", "indicators.tsv", Indicator("碼\tn\tn\t-"),
     "indicators.tsv:2: the code is"},
    {"no market", "indicators.tsv", Indicator("X\tn\tn\t"), "indicators.tsv:2: the market is"},
    {"long market", "indicators.tsv", Indicator("X\tn\tn\t" + std::string(32, 'M')),
     "indicators.tsv:2: the market is"},
    {"market without a name", "indicators.tsv", Indicator("X\t-\t-\tCME"),
     "indicators.tsv:2: a market without a name"},
    {"code twice", "indicators.tsv", Indicator("X\tn\tn\t-") + "8\tr\tr\tc\tc\tx\tm\tm\t-\n",
     "indicators.tsv:3: the code stands twice"},
};

TEST(MarketDirectory, RefusesABadIndicatorWithItsLine) {
  for (const BadFile& bad : kBadIndicators)
    ExpectRefusal(bad);
}

} // namespace
