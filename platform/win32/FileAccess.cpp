#include "platform/SaveSteps.h"
#include "platform/SystemFiles.h"
#include "platform/win32/FileHandle.h"
#include "platform/win32/SystemPath.h"

#include <new>

namespace tq {
namespace {

ReadResult ReadOpenFile(HANDLE file, std::size_t limit, std::string& bytes) {
  constexpr LONGLONG oneCall = std::numeric_limits<DWORD>::max() - 1;
  LARGE_INTEGER size;
  if (::GetFileType(file) != FILE_TYPE_DISK || ::GetFileSizeEx(file, &size) == 0)
    return ReadResult::Failed;
  if (static_cast<std::size_t>(size.QuadPart) > limit || size.QuadPart > oneCall)
    return ReadResult::TooLarge;
  bytes.resize(static_cast<std::size_t>(size.QuadPart));
  DWORD got = 0;
  DWORD more = 0;
  char next;
  if (::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr) != 0 &&
      got == bytes.size() && ::ReadFile(file, &next, 1, &more, nullptr) != 0 && more == 0)
    return ReadResult::Ok;
  bytes.clear();
  return ReadResult::Failed;
}

class WindowsFiles : public FileAccess {
public:
  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    FileHandle file;
    if (file.Open(SystemPath(path), GENERIC_READ, kShareAll, OPEN_EXISTING))
      return ReadOpenFile(file.Get(), limit, bytes);
    const DWORD error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ReadResult::Missing
                                                                          : ReadResult::Failed;
  }

  SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    return RunSave(*MakeSaveSteps(path), bytes, size);
  }

  bool DirectoryExists(const char* directory) override {
    const DWORD attributes = ::GetFileAttributesW(SystemPath(directory).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  }

  bool FileExists(const char* path) override {
    const DWORD attributes = ::GetFileAttributesW(SystemPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  }

  bool RenameFile(const char* from, const char* to) override {
    return FileExists(from) &&
           ::MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  }
};

} // namespace

FileAccess& SystemFiles() {
  // Never destroyed, for files may be asked for until the process ends, and without storage of its own, for
  // the library may be unloaded long before that.
  alignas(WindowsFiles) static unsigned char room[sizeof(WindowsFiles)];
  static WindowsFiles* const files = new (room) WindowsFiles;
  return *files;
}

} // namespace tq
