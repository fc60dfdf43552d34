// Holdings of trading accounts.
#pragma once

#include <cstddef>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// The merged holdings of 10, 100 and 1,000 accounts with 1,000 positions each (a tenth of that if
// `quick`), drawn from the symbols of `market`. Sets other markets meanwhile and `market` again at
// the end.
void MeasureTrading(Report& report, standin::Market market, bool quick);

} // namespace bench
