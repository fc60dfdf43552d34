// LoadMarket: exchanges, symbols, the user.
#include "tests/terminal/MarketFilesTest.h"

namespace {

TEST_F(MarketFiles, ReadsExchangesSymbolsAndTheUser) {
  directory.Write("symbols.tsv", kSymbols +
                                     "TW\t2330\t台積電\t台积电\tstock\t2\t1000\t1085.5\tX2330\n"
                                     "TW\t2317\t鴻海\t鸿海\tstock\t2\t1000\t-\t-\n");
  directory.Write("user.tsv", kUser + "entitled\t1,2\ndefaults\t1\nfull_menu_key\tK\n");
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(market.exchanges.size(), 1u);
  EXPECT_EQ(market.exchanges[0].titleTw, "上市");
  ASSERT_EQ(market.instruments.size(), 2u);
  EXPECT_EQ(market.instruments[0].exchId, 1);
  EXPECT_EQ(market.instruments[0].code, "2330");
  EXPECT_EQ(market.instruments[0].nameCn, "台积电");
  EXPECT_EQ(market.instruments[0].kind, "stock");
  EXPECT_EQ(market.instruments[0].decimals, 2);
  EXPECT_EQ(market.instruments[0].lot, 1000);
  EXPECT_EQ(market.instruments[0].price, "1085.5");
  EXPECT_EQ(market.instruments[0].exchangeCode, "X2330");
  EXPECT_EQ(market.instruments[1].price, "");
  EXPECT_EQ(market.instruments[1].exchangeCode, "");
  EXPECT_TRUE(market.groups.empty());
  EXPECT_TRUE(market.tradingSystems.empty());
  EXPECT_EQ(market.entitled, "1,2");
  EXPECT_EQ(market.defaults, "1");
  EXPECT_EQ(market.fullMenuKey, "K");
}

TEST_F(MarketFiles, PassesOverCommentsBlankLinesCarriageReturnsAndAByteOrderMark) {
  directory.Write(
      "exchanges.tsv",
      "\xEF\xBB\xBF# comment\r\n\r\nid\tname\ttitle_tw\ttitle_cn\r\n1\tTW\t\tx\r\n\n#\n2\tTE\t\t");
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(market.exchanges.size(), 2u);
  EXPECT_EQ(market.exchanges[0].titleCn, "x");
  EXPECT_EQ(market.exchanges[1].name, "TE");
}

TEST_F(MarketFiles, TheSampleMarketLoads) {
  ASSERT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
  EXPECT_FALSE(market.exchanges.empty());
  EXPECT_FALSE(market.instruments.empty());
  EXPECT_FALSE(market.defaults.empty());
  EXPECT_FALSE(market.groups.empty());
  EXPECT_EQ(market.tradingSystems.size(), 2u);
}

TEST_F(MarketFiles, AFailedLoadLeavesTheMarketAsItWas) {
  market.defaults = "kept";
  EXPECT_FALSE(standin::LoadMarket(directory.Native("nowhere"), market, error));
  EXPECT_EQ(error, "exchanges.tsv: cannot be read");
  EXPECT_EQ(market.defaults, "kept");
  EXPECT_TRUE(market.exchanges.empty());
}

TEST(MarketDirectory, WithoutSymbolsIsRefused) {
  const TempDir directory;
  directory.Write("exchanges.tsv", kExchanges + kOneExchange);
  standin::Market market;
  std::string error;
  EXPECT_FALSE(standin::LoadMarket(directory.Path(), market, error));
  EXPECT_EQ(error, "symbols.tsv: cannot be read");
}

std::string Symbol(const std::string& exchange, const std::string& code, const std::string& name,
                   const std::string& numbers = "2\t1000\t-\t-") {
  return kSymbols + exchange + "\t" + code + "\t" + name + "\t" + name + "\tstock\t" + numbers +
         "\n";
}

const BadFile kBad[] = {
    {"no header", "exchanges.tsv", "", "exchanges.tsv: no header"},
    {"wrong header", "exchanges.tsv", "id\tname\n", "exchanges.tsv:1: the header"},
    {"records before the header", "symbols.tsv", "TW\t1\n", "symbols.tsv:1: the header"},
    {"too few fields", "exchanges.tsv", kExchanges + "1\tTW\n",
     "exchanges.tsv:2: 4 fields expected, found 2"},
    {"too many fields", "exchanges.tsv", kExchanges + "1\tTW\t\t\t\n",
     "exchanges.tsv:2: 4 fields expected, found 5"},
    {"id no number", "exchanges.tsv", kExchanges + "1x\tTW\t\t\n", "exchanges.tsv:2: the id"},
    {"id 0", "exchanges.tsv", kExchanges + "0\tTW\t\t\n", "exchanges.tsv:2: the id"},
    {"id too large", "exchanges.tsv", kExchanges + "32768\tTW\t\t\n", "exchanges.tsv:2: the id"},
    {"long exchange name", "exchanges.tsv", kExchanges + "1\t" + std::string(20, 'X') + "\t\t\n",
     "exchanges.tsv:2: the name"},
    {"exchange name with a dot", "exchanges.tsv", kExchanges + "1\tT.W\t\t\n",
     "exchanges.tsv:2: the name"},
    {"exchange twice", "exchanges.tsv", kExchanges + "1\tTW\t\t\n#\n1\tTE\t\t\n",
     "exchanges.tsv:4: the id or the name stands twice"},
    {"bad UTF-8", "exchanges.tsv", kExchanges + "1\tTW\t\xB3\x5C\t\n",
     "exchanges.tsv:2: not UTF-8"},
    {"overlong UTF-8", "exchanges.tsv", kExchanges + "1\tTW\t\xC0\x80\t\n",
     "exchanges.tsv:2: not UTF-8"},
    {"surrogate", "exchanges.tsv", kExchanges + "1\tTW\t\xED\xA0\x80\t\n",
     "exchanges.tsv:2: not UTF-8"},
    {"NUL", "exchanges.tsv", kExchanges + "1\tTW\t" + std::string(1, '\0') + "\t\n",
     "exchanges.tsv:2: a NUL"},
    {"unknown exchange", "symbols.tsv", Symbol("TX", "2330", "n"),
     "symbols.tsv:2: unknown exchange"},
    {"exchange in other case", "symbols.tsv", Symbol("tw", "2330", "n"),
     "symbols.tsv:2: unknown exchange"},
    {"no code", "symbols.tsv", Symbol("TW", "", "n"), "symbols.tsv:2: the code"},
    {"long code", "symbols.tsv", Symbol("TW", std::string(20, '1'), "n"),
     "symbols.tsv:2: the code"},
    {"comma in the code", "symbols.tsv", Symbol("TW", "1,2", "n"), "symbols.tsv:2: the code"},
    {"colon in the code", "symbols.tsv", Symbol("TW", "1:2", "n"), "symbols.tsv:2: the code"},
    {"long full id", "symbols.tsv", Symbol("TW", std::string(17, '1'), "n"),
     "symbols.tsv:2: the full id"},
    {"long name", "symbols.tsv", Symbol("TW", "1", kFifteen + "A"), "symbols.tsv:2: a name"},
    {"long ASCII name", "symbols.tsv", Symbol("TW", "1", std::string(31, 'A')),
     "symbols.tsv:2: a name"},
    {"decimals", "symbols.tsv", Symbol("TW", "1", "n", "two\t1\t-\t-"), "symbols.tsv:2: decimals"},
    {"negative decimals", "symbols.tsv", Symbol("TW", "1", "n", "-1\t1\t-\t-"),
     "symbols.tsv:2: decimals"},
    {"no lot", "symbols.tsv", Symbol("TW", "1", "n", "2\t\t-\t-"), "symbols.tsv:2: lot"},
    {"lot 0", "symbols.tsv", Symbol("TW", "1", "n", "2\t0\t-\t-"), "symbols.tsv:2: lot"},
    {"price", "symbols.tsv", Symbol("TW", "1", "n", "2\t1\t1.\t-"), "symbols.tsv:2: price"},
    {"price with a sign", "symbols.tsv", Symbol("TW", "1", "n", "2\t1\t+1\t-"),
     "symbols.tsv:2: price"},
    {"exchange code", "symbols.tsv", Symbol("TW", "1", "n", "2\t1\t-\t" + std::string(20, '1')),
     "symbols.tsv:2: the code"},
    {"user key", "user.tsv", kUser + "entitled\t1\nother\t1\n", "user.tsv:3: unknown key"},
};

TEST(MarketDirectory, RefusesABadFileWithItsLine) {
  for (const BadFile& bad : kBad)
    ExpectRefusal(bad);
}

TEST_F(MarketFiles, TakesWhatJustFits) {
  directory.Write("symbols.tsv", Symbol("TW", std::string(16, '1'), kFifteen, "9\t1\t0\t-") +
                                     "TW\t1\t" + std::string(30, 'A') +
                                     "\t\tx\t0\t2147483647\t\t\n");
  ASSERT_TRUE(Load()) << error;
  EXPECT_EQ(market.instruments.size(), 2u);
}

} // namespace
