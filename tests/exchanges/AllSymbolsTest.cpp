// The buffer of all symbols, made without a manager.
#include "exchanges/AllSymbols.h"

#include <string>

#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

class AllSymbolsTest : public StandInTest {
protected:
  AllSymbolsTest() { defaults.Add(1); }

  // How many there are, and the first.
  std::string Contents() const {
    SymbolInfo* infos = nullptr;
    int count = 0;
    if (all.Copy(&infos, &count) == 0)
      return "(none)";
    const std::string contents = std::to_string(count) + " " + infos[0].id;
    tq::AllSymbols::Free(infos);
    return contents;
  }

  CUIntArray defaults;
  tq::AllSymbols all;
};

TEST_F(AllSymbolsTest, BeginsEmpty) {
  EXPECT_TRUE(all.IsEmpty());
  EXPECT_EQ(Contents(), "(none)");
}

TEST_F(AllSymbolsTest, HoldsTheSymbolsOfEveryExchange) {
  all.Build(defaults);
  EXPECT_FALSE(all.IsEmpty());
  EXPECT_EQ(Contents(), std::to_string(standin::CurrentMarket().instruments.size()) + " 2330.TW");
  all.Clear();
  EXPECT_TRUE(all.IsEmpty());
}

TEST_F(AllSymbolsTest, StaysAsItIsWhenTheServiceFails) {
  all.Build(defaults);
  const std::string before = Contents();
  standin::FailCall("VLGetExch", 1);
  all.Build(defaults);
  EXPECT_EQ(Contents(), before);
  standin::FailCall("VLGetSymbolInfos2", 2);
  all.Build(defaults);
  EXPECT_EQ(Contents(), before);
}

TEST_F(AllSymbolsTest, ABufferThatLacksAnExchangeIsBetterThanNone) {
  standin::FailCall("VLGetSymbolInfos2", 1);
  all.Build(defaults);
  EXPECT_FALSE(all.IsEmpty());
}

TEST_F(AllSymbolsTest, WithoutSymbolsThereIsNone) {
  all.Build(defaults);
  standin::Market market = standin::CurrentMarket();
  market.instruments.clear();
  standin::SetMarket(market);
  all.Build(defaults);
  EXPECT_TRUE(all.IsEmpty());
}

TEST_F(AllSymbolsTest, OutputsMustBeThere) {
  all.Build(defaults);
  int count = 7;
  EXPECT_EQ(all.Copy(nullptr, &count), 0);
  EXPECT_EQ(count, 7);
  SymbolInfo* infos = nullptr;
  EXPECT_EQ(all.Copy(&infos, nullptr), 0);
  EXPECT_EQ(infos, nullptr);
  tq::AllSymbols::Free(nullptr);
}

} // namespace
