// Records of single symbols and their lots, over tables and default exchanges without a manager.
#include "exchanges/SymbolInfos.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

class SymbolInfosTest : public StandInTest {
protected:
  SymbolInfosTest() { defaults.Init(); }

  void BuildTables() {
    tables = std::make_unique<CSymbolTableMgr>();
    tables->InitAllSymbolTable();
  }
  std::string IdOf(const char* id) const {
    SymbolInfo info = {};
    return tq::ReadSymbolInfo(id, nullptr, 0, defaults, tables, &info) != 0 ? info.id : "(none)";
  }
  std::string Meant(const char* text) const {
    SymbolInfo info = {};
    return tq::FindValidSymbol(text, 0, tables, &info) != 0 ? info.id : "(none)";
  }

  tq::DefaultExchanges defaults;
  std::unique_ptr<CSymbolTableMgr> tables;
};

TEST_F(SymbolInfosTest, ABareCodeIsLookedForOnTheDefaultExchangesInOrder) {
  EXPECT_EQ(IdOf("7777"), "7777.TW");
  EXPECT_EQ(IdOf("6488"), "6488.TE");
  EXPECT_EQ(IdOf("AAPL"), "(none)");
  EXPECT_EQ(IdOf(""), "(none)");
}

TEST_F(SymbolInfosTest, AnIdWithItsExchangeIsAskedForAsItIs) {
  BuildTables();
  EXPECT_EQ(IdOf("AAPL.NASD"), "AAPL.NASD");
  EXPECT_EQ(IdOf("7777.TE"), "7777.TE");
}

TEST_F(SymbolInfosTest, TheOnlyResultOfASearchIsMeant) {
  BuildTables();
  EXPECT_EQ(Meant("2454"), "2454.TW");
  EXPECT_EQ(Meant("no such symbol"), "(none)");
}

TEST_F(SymbolInfosTest, TablesMayGoWhileTheServiceSearches) {
  // Two symbols whose bare code is the text, which only the tables tell.
  standin::Market market = standin::CurrentMarket();
  for (standin::Instrument& instrument : market.instruments)
    instrument.exchangeCode = "X" + instrument.code;
  standin::SetMarket(market);
  BuildTables();
  EXPECT_EQ(Meant("7777"), "7777.TW");
  standin::OnCall("VLFindSymbol", [this] { tables.reset(); });
  EXPECT_EQ(Meant("7777"), "(none)");
}

TEST_F(SymbolInfosTest, ALotIsThatOfTheKindsExchanges) {
  BuildTables();
  EXPECT_EQ(tq::TradeLotSize("2330", tables.get(), 0), 1000);
  EXPECT_EQ(tq::TradeLotSize("TXFL6", tables.get(), 1), 1);
  EXPECT_EQ(tq::TradeLotSize("SPY.AMEX", tables.get(), 9), 1);
  EXPECT_EQ(tq::TradeLotSize("none", tables.get(), 1), 1000);
  EXPECT_EQ(tq::TradeLotSize("TXFL6", nullptr, 1), 1000);
}

} // namespace
