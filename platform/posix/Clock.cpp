#include "platform/SystemClock.h"

#include <ctime>

namespace tq {

int SystemLocalYear() {
  constexpr int yearZeroOfTm = 1900;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return local.tm_year + yearZeroOfTm;
}

} // namespace tq
