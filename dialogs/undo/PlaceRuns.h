// Places in a list as runs of neighbours. What a user selects, moves or removes is seldom more than
// a few of them, however long the list is.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace tq {

struct PlaceRun {
  int first;
  int count;

  int End() const { return first + count; }
  bool operator==(const PlaceRun&) const = default;
};
using PlaceRuns = std::vector<PlaceRun>; // they ascend

// Behind the places that are there.
inline void AddPlace(PlaceRuns& runs, int place) {
  if (!runs.empty() && runs.back().End() == place)
    ++runs.back().count;
  else
    runs.push_back({place, 1});
}

// Takes what stands at these places out of `all`.
template <typename Item>
std::vector<Item> TakeOut(std::vector<Item>& all, const PlaceRuns& places) {
  std::size_t count = 0;
  for (const PlaceRun& run : places)
    count += static_cast<std::size_t>(run.count);
  std::vector<Item> taken;
  std::vector<Item> kept;
  taken.reserve(count);
  kept.reserve(all.size() - count);
  auto at = all.begin();
  for (const PlaceRun& run : places) {
    const auto first = all.begin() + run.first;
    std::move(at, first, std::back_inserter(kept));
    at = first + run.count;
    std::move(first, at, std::back_inserter(taken));
  }
  std::move(at, all.end(), std::back_inserter(kept));
  all = std::move(kept);
  return taken;
}

// Puts in again what TakeOut took from these places, so that it stands there.
template <typename Item>
void PutIn(std::vector<Item>& all, const PlaceRuns& places, std::vector<Item> taken) {
  std::vector<Item> whole;
  whole.reserve(all.size() + taken.size());
  auto rest = all.begin();
  auto put = taken.begin();
  for (const PlaceRun& run : places) {
    const auto upTo = rest + (run.first - static_cast<std::ptrdiff_t>(whole.size()));
    std::move(rest, upTo, std::back_inserter(whole));
    std::move(put, put + run.count, std::back_inserter(whole));
    rest = upTo;
    put += run.count;
  }
  std::move(rest, all.end(), std::back_inserter(whole));
  all = std::move(whole);
}

} // namespace tq
