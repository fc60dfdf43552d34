#include "tests/support/TradingMarket.h"

#include "tests/support/SmallMarket.h"

standin::Market TradingMarket() {
  standin::Market market = SmallMarket();
  market.tradingSystems = {
      {"VTS01",
       "示範證券",
       "示范证券",
       true,
       {{1, "98011", "9801-***1", "2330.TW,2317.TW,0050.TW"},
        {2, "F0211", "F021-***1", "TXFL6.TF"}}},
      {"VTS02",
       "樣本證券",
       "样本证券",
       true,
       {{1, "70061", "7006-***1", "2330.TW,6488.TE"}, {2, "F7001", "F700-***1", ""}}},
  };
  return market;
}
