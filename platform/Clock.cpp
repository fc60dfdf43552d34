#include "platform/Clock.h"

#include <atomic>

#include "platform/SystemClock.h"

namespace tq {
namespace {

std::atomic<ClockSource> g_source{&SystemLocalYear};

} // namespace

int CurrentLocalYear() {
  return g_source.load(std::memory_order_acquire)();
}

ClockSource SetClock(ClockSource source) {
  return g_source.exchange(source != nullptr ? source : &SystemLocalYear,
                           std::memory_order_acq_rel);
}

} // namespace tq
