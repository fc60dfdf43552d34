// Start-up: initialising the library compared with only receiving its input.
#pragma once

#include <cstddef>

#include "bench/Report.h"

namespace bench {

// On the market that the services currently serve, which has `symbols` symbols.
void MeasureStartUp(Report& report, std::size_t symbols, std::size_t repetitions);

} // namespace bench
