#include "platform/System.h"

#include <cerrno>
#include <ctime>
#include <sys/random.h>

namespace tq {

int SystemLocalDay() {
  constexpr int yearZeroOfTm = 1900;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return (local.tm_year + yearZeroOfTm) * 10000 + (local.tm_mon + 1) * 100 + local.tm_mday;
}

bool SystemGuid(Guid& guid) {
  static_assert(sizeof(Guid) == 16);
  ssize_t got;
  do {
    got = ::getrandom(&guid, sizeof guid, 0);
  } while (got < 0 && errno == EINTR);
  if (got != static_cast<ssize_t>(sizeof guid))
    return false;
  // Version 4 (random), variant of the standard.
  guid.data3 = static_cast<std::uint16_t>((guid.data3 & 0x0FFF) | 0x4000);
  guid.data4[0] = static_cast<std::uint8_t>((guid.data4[0] & 0x3F) | 0x80);
  return true;
}

} // namespace tq
