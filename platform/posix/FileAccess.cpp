#include "platform/ReadSteps.h"
#include "platform/SaveSteps.h"
#include "platform/posix/SystemPath.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace tq {
namespace {

constexpr useconds_t kReadPause = 10'000; // microseconds

constexpr std::uint64_t kNanosecondsOfASecond = 1'000'000'000;

FileStamp StampOf(const struct stat& info) {
  FileStamp stamp;
  stamp.size = static_cast<std::uint64_t>(info.st_size);
  stamp.modified = static_cast<std::uint64_t>(info.st_mtim.tv_sec) * kNanosecondsOfASecond +
                   static_cast<std::uint64_t>(info.st_mtim.tv_nsec);
  stamp.volume = info.st_dev;
  stamp.index = info.st_ino;
  return stamp;
}

// Whether errno, after a failed call that takes a path, means that there is no such file.
bool IsMissing() {
  return errno == ENOENT || errno == ENOTDIR;
}

class PosixReadSteps : public ReadSteps {
public:
  explicit PosixReadSteps(const char* path) : path_(SystemPath(path)) {}
  ~PosixReadSteps() override {
    if (file_ >= 0)
      ::close(file_);
  }
  PosixReadSteps(const PosixReadSteps&) = delete;
  PosixReadSteps& operator=(const PosixReadSteps&) = delete;

  ReadResult Open() override {
    // Non-blocking, so that a pipe of this name cannot hang the terminal.
    file_ = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file_ >= 0)
      return ReadResult::Ok;
    return IsMissing() ? ReadResult::Missing : ReadResult::Failed;
  }

  bool Stamp(FileStamp& stamp) override {
    struct stat info;
    if (::fstat(file_, &info) != 0 || !S_ISREG(info.st_mode))
      return false;
    stamp = StampOf(info);
    return true;
  }

  bool Read(std::string& bytes) override {
    std::size_t done = 0;
    while (done < bytes.size()) {
      const ssize_t got =
          ::pread(file_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
      if (got < 0 && errno == EINTR)
        continue;
      if (got <= 0)
        return false;
      done += static_cast<std::size_t>(got);
    }
    return true;
  }

  void Pause() override { ::usleep(kReadPause); }

private:
  const std::string path_;
  int file_ = -1;
};

class PosixFiles : public FileAccess {
public:
  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    return RunRead(*MakeReadSteps(path), limit, bytes);
  }

  SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    return RunSave(*MakeSaveSteps(path), bytes, size);
  }

  bool DirectoryExists(const char* directory) override {
    struct stat info;
    return ::stat(directory, &info) == 0 && S_ISDIR(info.st_mode);
  }

  bool FileExists(const char* path) override {
    struct stat info;
    return ::stat(SystemPath(path).c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
  }

  FileState StateOf(const char* path, FileStamp& stamp) override {
    stamp = {};
    struct stat info;
    if (::stat(SystemPath(path).c_str(), &info) != 0)
      return IsMissing() ? FileState::Missing : FileState::Unknown;
    if (!S_ISREG(info.st_mode))
      return FileState::Other;
    stamp = StampOf(info);
    return FileState::File;
  }

  bool RenameFile(const char* from, const char* to) override {
    return FileExists(from) && ::rename(SystemPath(from).c_str(), SystemPath(to).c_str()) == 0;
  }

  bool RemoveFile(const char* path) override {
    FileStamp stamp;
    return StateOf(path, stamp) == FileState::File && ::unlink(SystemPath(path).c_str()) == 0;
  }

  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override {
    names.clear();
    DIR* const entries = ::opendir(directory);
    if (entries == nullptr)
      return false;
    errno = 0;
    while (const dirent* const entry = ::readdir(entries)) {
      struct stat info;
      if (IsListedName(entry->d_name, prefix) &&
          ::fstatat(::dirfd(entries), entry->d_name, &info, 0) == 0 && S_ISREG(info.st_mode))
        names.emplace_back(entry->d_name);
      errno = 0; // which alone tells an error from the end
    }
    const bool whole = errno == 0;
    ::closedir(entries);
    if (!whole)
      names.clear();
    return whole;
  }
};

} // namespace

std::unique_ptr<ReadSteps> MakeReadSteps(const char* path) {
  return std::make_unique<PosixReadSteps>(path);
}

FileAccess& SystemFiles() {
  // Never destroyed, since files may be used until the process ends, and not on the heap, where it
  // would leak when the library is unloaded earlier.
  alignas(PosixFiles) static unsigned char room[sizeof(PosixFiles)];
  static PosixFiles* const files = new (room) PosixFiles;
  return *files;
}

} // namespace tq
