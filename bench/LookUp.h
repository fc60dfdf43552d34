// Symbol look-ups compared with hash maps of the same texts.
#pragma once

#include <cstddef>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

// `market` is what the services currently serve.
void MeasureLookUps(Report& report, const standin::Market& market, std::size_t repetitions);

} // namespace bench
