// The groups: loading all of them, and finding one by its id.
#pragma once

#include "bench/Report.h"

namespace bench {

// Puts markets of its own behind the services. `quick` makes them small.
void MeasureGroups(Report& report, bool quick);

} // namespace bench
