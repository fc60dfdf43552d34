#include "platform/SystemClock.h"

#include <windows.h>

namespace tq {

int SystemLocalYear() {
  SYSTEMTIME local;
  ::GetLocalTime(&local);
  return local.wYear;
}

} // namespace tq
