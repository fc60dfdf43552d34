#include "platform/SystemGuid.h"

#include <windows.h>

#include <objbase.h>

#include <cstring>

namespace tq {

bool SystemGuid(Guid& guid) {
  static_assert(sizeof(Guid) == sizeof(GUID));
  GUID made;
  const HRESULT result = ::CoCreateGuid(&made);
  std::memcpy(&guid, &made, sizeof guid);
  return SUCCEEDED(result);
}

} // namespace tq
