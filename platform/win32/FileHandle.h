// Files as Windows takes them: paths in UTF-16, and an open file. For bodies in this folder only.
#pragma once

#include <windows.h>

#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "platform/win32/WindowsObjects.h"

namespace tq {

// `path`, in the ANSI code page, in UTF-16. The library's own separator is the system's here.
inline std::wstring SystemPath(const char* path) {
  const int size = ::MultiByteToWideChar(CP_ACP, 0, path, -1, nullptr, 0);
  if (size <= 1)
    return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, path, -1, wide.data(), size);
  wide.pop_back(); // the NUL
  return wide;
}

// No program is to be kept from reading, writing or replacing a file while this library uses it.
inline constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class FileHandle {
public:
  FileHandle() = default;
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() { Close(); }

  bool Open(const std::wstring& path, DWORD access, DWORD share, DWORD disposition,
            DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
    Close();
    handle_ = ::CreateFileW(path.c_str(), access, share, nullptr, disposition, attributes, nullptr);
    if (IsOpen())
      NoteOpened(SystemObject::File); // leaves the system's last error as it is
    return IsOpen();
  }
  bool Close() {
    if (!IsOpen())
      return true;
    const bool closed = ::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
    if (closed)
      NoteClosed(SystemObject::File);
    return closed;
  }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }

  // One call; what does not fit in it counts as not written. Returns the bytes written.
  std::size_t WriteOnce(const void* bytes, std::size_t size) {
    constexpr std::size_t most = std::numeric_limits<DWORD>::max();
    DWORD written = 0;
    const auto part = static_cast<DWORD>(size < most ? size : most);
    return ::WriteFile(handle_, bytes, part, &written, nullptr) != 0 ? written : 0;
  }

private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

} // namespace tq
