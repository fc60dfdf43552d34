#include "platform/win32/SystemPath.h"

#include <windows.h>

namespace tq {

std::wstring SystemPath(const char* path) {
  const int size = ::MultiByteToWideChar(CP_ACP, 0, path, -1, nullptr, 0);
  if (size <= 1)
    return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, path, -1, wide.data(), size);
  wide.pop_back(); // the NUL
  return wide;
}

} // namespace tq
