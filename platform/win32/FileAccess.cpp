#include "platform/ReadSteps.h"
#include "platform/SaveSteps.h"
#include "platform/win32/FileHandle.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>

namespace tq {
namespace {

constexpr DWORD kReadPause = 10; // milliseconds
constexpr std::uint64_t kOneCall = std::numeric_limits<DWORD>::max() - 1;

std::uint64_t Join(DWORD high, DWORD low) {
  return static_cast<std::uint64_t>(high) << 32 | low;
}

FileStamp StampOf(const BY_HANDLE_FILE_INFORMATION& info) {
  FileStamp stamp;
  stamp.size = Join(info.nFileSizeHigh, info.nFileSizeLow);
  stamp.modified = Join(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime);
  stamp.volume = info.dwVolumeSerialNumber;
  stamp.index = Join(info.nFileIndexHigh, info.nFileIndexLow);
  return stamp;
}

// Whether the last error, after a failed call that takes a path, means that there is no such file.
bool IsMissing() {
  const DWORD error = ::GetLastError();
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

class WindowsReadSteps : public ReadSteps {
public:
  explicit WindowsReadSteps(const char* path) : path_(SystemPath(path)) {}

  ReadResult Open() override {
    if (file_.Open(path_, GENERIC_READ, kShareAll, OPEN_EXISTING))
      return ReadResult::Ok;
    return IsMissing() ? ReadResult::Missing : ReadResult::Failed;
  }

  bool Stamp(FileStamp& stamp) override {
    BY_HANDLE_FILE_INFORMATION info;
    if (::GetFileType(file_.Get()) != FILE_TYPE_DISK ||
        ::GetFileInformationByHandle(file_.Get(), &info) == 0)
      return false;
    stamp = StampOf(info);
    return true;
  }

  bool Read(std::string& bytes) override {
    const LARGE_INTEGER start = {};
    DWORD got = 0;
    return ::SetFilePointerEx(file_.Get(), start, nullptr, FILE_BEGIN) != 0 &&
           ::ReadFile(file_.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr) !=
               0 &&
           got == bytes.size();
  }

  void Pause() override { ::Sleep(kReadPause); }

private:
  const std::wstring path_;
  FileHandle file_;
};

class WindowsFiles : public FileAccess {
public:
  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    const std::uint64_t most = std::min<std::uint64_t>(limit, kOneCall);
    return RunRead(*MakeReadSteps(path), static_cast<std::size_t>(most), bytes);
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

  FileState StateOf(const char* path, FileStamp& stamp) override {
    stamp = {};
    FileHandle file; // opened for attributes only, which no sharing mode of others forbids
    if (!file.Open(SystemPath(path), FILE_READ_ATTRIBUTES, kShareAll, OPEN_EXISTING,
                   FILE_FLAG_BACKUP_SEMANTICS))
      return IsMissing() ? FileState::Missing : FileState::Unknown;
    BY_HANDLE_FILE_INFORMATION info;
    if (::GetFileType(file.Get()) != FILE_TYPE_DISK)
      return FileState::Other;
    if (::GetFileInformationByHandle(file.Get(), &info) == 0)
      return FileState::Unknown;
    if ((info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
      return FileState::Other;
    stamp = StampOf(info);
    return FileState::File;
  }

  bool RenameFile(const char* from, const char* to) override {
    return FileExists(from) &&
           ::MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  }

  bool RemoveFile(const char* path) override {
    FileStamp stamp;
    return StateOf(path, stamp) == FileState::File && ::DeleteFileW(SystemPath(path).c_str()) != 0;
  }

  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override {
    names.clear();
    WIN32_FIND_DATAW entry;
    const HANDLE search = ::FindFirstFileW((SystemPath(directory) + L"\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
      return false;
    NoteOpened(SystemObject::File);
    do {
      AddName(entry, prefix, names);
    } while (::FindNextFileW(search, &entry) != 0);
    const bool whole = ::GetLastError() == ERROR_NO_MORE_FILES;
    if (::FindClose(search) != 0)
      NoteClosed(SystemObject::File);
    if (!whole)
      names.clear();
    return whole;
  }

private:
  static void AddName(const WIN32_FIND_DATAW& entry, const char* prefix,
                      std::vector<std::string>& names) {
    constexpr DWORD noFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    std::string name;
    for (const wchar_t* p = entry.cFileName; *p != L'\0'; ++p)
      name += *p < 0x80 ? static_cast<char>(*p) : '\x80';
    if ((entry.dwFileAttributes & noFile) == 0 && IsListedName(name.c_str(), prefix))
      names.push_back(std::move(name));
  }
};

} // namespace

std::unique_ptr<ReadSteps> MakeReadSteps(const char* path) {
  return std::make_unique<WindowsReadSteps>(path);
}

FileAccess& SystemFiles() {
  // Never destroyed, since files may be used until the process ends, and not on the heap, where it
  // would leak when the library is unloaded earlier.
  alignas(WindowsFiles) static unsigned char room[sizeof(WindowsFiles)];
  static WindowsFiles* const files = new (room) WindowsFiles;
  return *files;
}

} // namespace tq
