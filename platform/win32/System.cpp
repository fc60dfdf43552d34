#include "platform/System.h"

#include <windows.h>

#include <objbase.h>

#include <cstring>

namespace tq {

int SystemLocalDay() {
  SYSTEMTIME local;
  ::GetLocalTime(&local);
  return local.wYear * 10000 + local.wMonth * 100 + local.wDay;
}

bool SystemGuid(Guid& guid) {
  static_assert(sizeof(Guid) == sizeof(GUID));
  GUID made;
  const HRESULT result = ::CoCreateGuid(&made);
  std::memcpy(&guid, &made, sizeof guid);
  return SUCCEEDED(result);
}

} // namespace tq
