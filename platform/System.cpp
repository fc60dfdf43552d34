#include "platform/System.h"

#include <atomic>
#include <cstdio>

namespace tq {
namespace {

std::atomic<ClockSource> g_clock{&SystemLocalDay};
std::atomic<GuidSource> g_guids{&SystemGuid};

} // namespace

int CurrentLocalDay() {
  return g_clock.load(std::memory_order_acquire)();
}

int CurrentLocalYear() {
  constexpr int daysOfANumberedYear = 10000;
  return CurrentLocalDay() / daysOfANumberedYear;
}

ClockSource SetClock(ClockSource source) {
  return g_clock.exchange(source != nullptr ? source : &SystemLocalDay, std::memory_order_acq_rel);
}

bool NewGuid(Guid& guid) {
  guid = {};
  if (g_guids.load(std::memory_order_acquire)(guid))
    return true;
  guid = {};
  return false;
}

void FormatGuid(const Guid& guid, char (&text)[kGuidTextLength + 1]) {
  const std::uint8_t* d = guid.data4;
  std::snprintf(text, sizeof text, "%08lX-%04X-%04x-%02X%02X-%02X%02X%02X%02X%02X%02X",
                static_cast<unsigned long>(guid.data1), guid.data2, guid.data3, d[0], d[1], d[2],
                d[3], d[4], d[5], d[6], d[7]);
}

GuidSource SetGuidSource(GuidSource source) {
  return g_guids.exchange(source != nullptr ? source : &SystemGuid, std::memory_order_acq_rel);
}

CString NewGuidText() {
  Guid guid;
  char text[kGuidTextLength + 1] = {};
  if (NewGuid(guid))
    FormatGuid(guid, text);
  return CString(text);
}

} // namespace tq
