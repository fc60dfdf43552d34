// The search for a symbol, and the dialog that adds symbols to lists.
#pragma once

#include "bench/Report.h"

namespace bench {

// Sets markets of its own. `quick` makes them small.
void MeasureSearch(Report& report, bool quick);

} // namespace bench
