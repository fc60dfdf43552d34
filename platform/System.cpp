#include "platform/System.h"

#include "platform/SystemGuid.h"

#include <atomic>
#include <cstdio>

namespace tq {
namespace {

std::atomic<GuidSource> g_source{&SystemGuid};

} // namespace

bool NewGuid(Guid& guid) {
  guid = {};
  if (g_source.load(std::memory_order_acquire)(guid))
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
  return g_source.exchange(source != nullptr ? source : &SystemGuid, std::memory_order_acq_rel);
}

} // namespace tq
