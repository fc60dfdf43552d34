// Look-ups of symbols over hash maps that hold the same text.
#pragma once

#include <cstddef>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// `market` is the one that the services have at the moment.
void MeasureLookUps(Report& report, const standin::Market& market, std::size_t repetitions);

} // namespace bench
