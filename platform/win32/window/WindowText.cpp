#include "platform/win32/window/WindowText.h"

#include <windows.h>

namespace tq {

std::wstring ToWide(const char* text) {
  std::wstring wide;
  const int length = text == nullptr ? 0 : ::lstrlenA(text);
  if (length == 0)
    return wide;
  wide.resize(static_cast<size_t>(length)); // at most one unit for each byte
  wide.resize(
      static_cast<size_t>(::MultiByteToWideChar(CP_ACP, 0, text, length, wide.data(), length)));
  return wide;
}

CString FromWide(const wchar_t* text, size_t length) {
  CString bytes;
  const int units = static_cast<int>(length);
  const int room =
      ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text, units, nullptr, 0, "?", nullptr);
  if (units == 0 || room <= 0)
    return bytes;
  char* const buffer = bytes.GetBuffer(room);
  ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text, units, buffer, room, "?", nullptr);
  bytes.ReleaseBuffer(room);
  return bytes;
}

} // namespace tq
