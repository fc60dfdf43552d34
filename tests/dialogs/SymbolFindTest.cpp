// What the search for one symbol finds, and what it asks for.
#include "dialogs/search/SymbolFind.h"

#include <algorithm>

#include "tests/interface/EditTest.h"

namespace {

class SymbolFind : public EditTest {
protected:
  SymbolFind() { StartWith({"A/one/2330.TW"}); }

  // The ids, and of each question that was asked its name.
  std::string Find(const std::string& text, const char* market = "", const char* exchanges = "") {
    standin::ClearCalls();
    const tq::DialogSources sources(manager, manager.GetSymbolTableMgr());
    const tq::SymbolRows rows =
        FindSymbols(sources, {standin::ToAnsi(text).c_str(), market, exchanges});
    std::string ids;
    for (const SymbolInfo& symbol : rows.All())
      ids += (ids.empty() ? "" : " ") + std::string(symbol.id);
    return ids;
  }
  static int Asked(const char* operation) { return standin::CountCalls(operation); }
};

TEST_F(SymbolFind, ADotInFrontMeansAnExchangesOwnCode) {
  EXPECT_EQ(Find(".2330"), "2330.TW");
  EXPECT_EQ(Find(".7777", "TW", "2"), "7777.TW 7777.TE"); // whatever market
  EXPECT_EQ(Asked("VLFindSymbol2"), 0);
}

TEST_F(SymbolFind, AnExchangesCodeThatThereIsNotFindsNothing) {
  EXPECT_EQ(Find(".nothing"), "");
  EXPECT_EQ(Find("."), "");
  EXPECT_EQ(Asked("VLFindSymbol"), 0);
}

TEST_F(SymbolFind, ABareCodeOfTheChosenMarketIsThatSymbol) {
  EXPECT_EQ(Find("7777", "TE"), "7777.TE");
  EXPECT_EQ(Find("aapl", "NASD"), "AAPL.NASD");
  EXPECT_EQ(Asked("VLFindSymbol"), 0);
}

TEST_F(SymbolFind, ACodeThatTheMarketDoesNotListIsSearchedEverywhere) {
  EXPECT_EQ(Find("2330", "TE"), "2330.TW");
  EXPECT_EQ(Find("7777", "NOWHERE"), "7777.TW 7777.TE");
}

TEST_F(SymbolFind, AFullIdIsNoCodeOfTheMarket) {
  EXPECT_EQ(Find("2330.TW", "TE"), "2330.TW");
  EXPECT_EQ(Asked("VLGetSymbolInfos"), 0);
}

TEST_F(SymbolFind, WithoutAPreferenceAllExchangesAreSearched) {
  EXPECT_EQ(Find("7777"), "7777.TW 7777.TE");
  EXPECT_EQ(Asked("VLFindSymbol"), 1);
  EXPECT_EQ(Asked("VLFindSymbol2"), 0);
}

TEST_F(SymbolFind, PreferredExchangesAreSearchedInTheirOrder) {
  EXPECT_EQ(Find("7777", "", "2,1"), "7777.TE 7777.TW");
  EXPECT_EQ(Find("7777", "", "1"), "7777.TW");
  EXPECT_EQ(Asked("VLFindSymbol"), 0);
}

TEST_F(SymbolFind, ANameIsFoundByAPartOfIt) {
  EXPECT_EQ(Find("台泥"), "1101.TW");
}

TEST_F(SymbolFind, WithoutTablesTheMarketIsNotLookedAt) {
  const tq::DialogSources sources(manager, nullptr);
  EXPECT_EQ(FindSymbols(sources, {"7777", "TE", ""}).Count(), 2);
}

TEST_F(SymbolFind, AServiceThatFailsFindsNothingAndTheNextStepIsTaken) {
  standin::FailAlways("VLGetSymbolInfos");
  EXPECT_EQ(Find("7777", "TE"), "7777.TW 7777.TE");
  standin::FailAlways("VLFindSymbol");
  EXPECT_EQ(Find("7777", "TE"), "");
  standin::FailAlways("VLFindSymbol2");
  EXPECT_EQ(Find("7777", "TE", "1,2"), "");
  standin::FailAlways("VLEX2ZUID2");
  EXPECT_EQ(Find(".7777"), "");
}

TEST_F(SymbolFind, ThePreferredExchangesAreThoseOfTheManagerInItsOrder) {
  CUIntArray order;
  manager.LoadDefExchOrder(order);
  EXPECT_STREQ(tq::PreferredExchanges(manager), "");
  for (const unsigned exchange : {11u, 2u, 1u})
    order.Add(exchange);
  manager.LoadDefExchOrder(order);
  EXPECT_STREQ(tq::PreferredExchanges(manager), "11,2,1");
}

} // namespace
