// Input from files, services or the terminal that is meant to make the library slow: the time per
// item at three sizes, which is constant as long as the work is linear.
#pragma once

#include <string>

#include "bench/Report.h"

namespace bench {

// `directory` must exist; files made in it are deleted.
void MeasureHostile(Report& report, const std::string& directory, bool quick);

} // namespace bench
