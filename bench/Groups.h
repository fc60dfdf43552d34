// Groups: a full load, and finding a group by its id.
#pragma once

#include "bench/Report.h"

namespace bench {

// Sets markets of its own. `quick` makes them small.
void MeasureGroups(Report& report, bool quick);

} // namespace bench
