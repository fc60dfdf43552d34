// Loading and saving a large list file.
#pragma once

#include <cstddef>
#include <string>

#include "bench/Report.h"
#include "terminal/StandIn.h"

namespace bench {

struct ListFileSize {
  std::size_t lists;
  std::size_t symbols; // of each list
};

// `market` is what the services currently serve; the ids are taken from it. `directory` must exist;
// files made in it are deleted.
void MeasureListFiles(Report& report, const standin::Market& market, ListFileSize size,
                      const std::string& directory, std::size_t repetitions);

} // namespace bench
