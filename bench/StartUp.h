// Start-up: the library's initialisation over only receiving what it is made from.
#pragma once

#include <cstddef>

#include "bench/Report.h"

namespace bench {

// On the market that the services have at the moment, of `symbols` symbols.
void MeasureStartUp(Report& report, std::size_t symbols, std::size_t repetitions);

} // namespace bench
