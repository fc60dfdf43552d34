#include "bench/Figure.h"

#include <time.h>

#include <algorithm>

namespace bench {
namespace {

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

double ProcessorSeconds() {
  timespec now = {};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

Figure Summarise(const std::vector<double>& library, const std::vector<double>& peer) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < library.size(); ++i)
    ratios.push_back(library[i] / peer[i]);
  const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
  return {Median(library), Median(peer), Median(ratios), *least, *most, ratios.size()};
}

} // namespace bench
