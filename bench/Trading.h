// Holdings of trading accounts.
#pragma once

#include <cstddef>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// The merged holdings of 10, 100 and 1,000 accounts with 1,000 positions each (a tenth of that when
// `quick`), drawn from the symbols of `market`. Puts other markets behind the services and ends
// with this one.
void MeasureTrading(Report& report, standin::Market market, bool quick);

} // namespace bench
