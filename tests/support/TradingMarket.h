// SmallMarket() with two trading systems.
#pragma once

#include "terminal/StandIn.h"

// VTS01: account 98011 of type 1 ("9801-***1") with 2330.TW, 2317.TW and 0050.TW; account F0211 of
// type 2 ("F021-***1") with TXFL6.TF.
// VTS02: account 70061 of type 1 ("7006-***1") with 2330.TW and 6488.TE, account F7001 of type 2
// ("F700-***1") without holdings.
// 2330.TW is held by two accounts, of either system.
standin::Market TradingMarket();
