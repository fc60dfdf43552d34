#include "tools/tqlists/files/Progress.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tqlists {
namespace {

constexpr std::chrono::milliseconds kFirst{1000};
constexpr std::chrono::milliseconds kBetween{200};

} // namespace

Progress::Progress(std::string what, std::size_t total, Streams& streams)
    : what_(std::move(what)), total_(total), streams_(streams),
      next_(streams.IsWatched() ? Clock::now() + kFirst : Clock::time_point::max()) {}

Progress::~Progress() {
  if (shown_ > 0)
    streams_.Say("\r" + std::string(shown_, ' ') + "\r");
}

void Progress::At(std::size_t done) {
  if (next_ == Clock::time_point::max() || Clock::now() < next_)
    return;
  const std::uint64_t percent =
      total_ == 0 ? 100 : std::min<std::uint64_t>(100, std::uint64_t{100} * done / total_);
  const std::string line = what_ + ": " + std::to_string(percent) + " %";
  streams_.Say("\r" + line);
  shown_ = std::max(shown_, line.size());
  next_ = Clock::now() + kBetween;
}

} // namespace tqlists
