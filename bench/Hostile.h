// What a file, a service or a terminal may give the library to make it slow: the time of each item
// at three sizes, which stays the same where time grows with what was given and no faster.
#pragma once

#include <string>

#include "bench/Report.h"

namespace bench {

// `directory` exists; the files that are made in it are deleted.
void MeasureHostile(Report& report, const std::string& directory, bool quick);

} // namespace bench
