#include "tools/tqlists/files/SystemFile.h"

#include "tools/tqlists/files/win32/WideText.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

namespace tqlists {
namespace {

HANDLE OpenToAsk(const std::string& path) {
  constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return ::CreateFileW(Wide(path).c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

} // namespace

bool IdentityOf(const std::string& path, FileIdentity& identity) {
  const HANDLE file = OpenToAsk(path);
  if (file == INVALID_HANDLE_VALUE)
    return false;
  BY_HANDLE_FILE_INFORMATION info{};
  const bool known = ::GetFileInformationByHandle(file, &info) != 0;
  ::CloseHandle(file);
  identity.volume = info.dwVolumeSerialNumber;
  identity.index = static_cast<std::uint64_t>(info.nFileIndexHigh) << 32 | info.nFileIndexLow;
  return known;
}

std::FILE* OpenFile(const std::string& path) {
  return ::_wfopen(Wide(path).c_str(), L"rb");
}

std::size_t SizeOf(std::FILE* file) {
  const __int64 size = ::_filelengthi64(::_fileno(file));
  return size > 0 ? static_cast<std::size_t>(size) : 0;
}

std::FILE* CreateNewFile(const std::string& path) {
  const int file = ::_wopen(Wide(path).c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY,
                            _S_IREAD | _S_IWRITE);
  return file < 0 ? nullptr : ::_fdopen(file, "wb");
}

bool FlushToDisk(std::FILE* file) {
  return std::fflush(file) == 0 && ::_commit(::_fileno(file)) == 0;
}

Placing PutInPlace(const std::string& temporary, const std::string& target, bool replace) {
  const DWORD flags = MOVEFILE_WRITE_THROUGH | (replace ? MOVEFILE_REPLACE_EXISTING : 0);
  if (::MoveFileExW(Wide(temporary).c_str(), Wide(target).c_str(), flags) != 0)
    return Placing::Placed;
  const DWORD error = ::GetLastError();
  return error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS ? Placing::Taken
                                                                     : Placing::Failed;
}

void RemoveFile(const std::string& path) {
  ::DeleteFileW(Wide(path).c_str());
}

std::string BehindLinks(const std::string& path) {
  const HANDLE file = OpenToAsk(path);
  if (file == INVALID_HANDLE_VALUE)
    return path;
  std::wstring real(32'768, L'\0'); // the longest path there is
  const DWORD length = ::GetFinalPathNameByHandleW(
      file, real.data(), static_cast<DWORD>(real.size()), FILE_NAME_NORMALIZED);
  ::CloseHandle(file);
  if (length == 0 || length >= real.size())
    return path;
  real.resize(length);
  return Narrow(real);
}

bool MakeDirectory(const std::string& path) {
  if (::CreateDirectoryW(Wide(path).c_str(), nullptr) != 0)
    return true;
  const DWORD attributes = ::GetFileAttributesW(Wide(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace tqlists
