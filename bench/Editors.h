// The content editor of lists: large markets, and large lists.
#pragma once

#include "bench/Report.h"

namespace bench {

// Sets markets of its own. `quick` makes them small.
void MeasureEditors(Report& report, bool quick);

} // namespace bench
