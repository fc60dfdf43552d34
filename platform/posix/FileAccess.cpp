#include "platform/ReadSteps.h"
#include "platform/SaveSteps.h"
#include "platform/posix/SystemPath.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
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

class PosixReadSteps : public ReadSteps {
public:
  // The file is the caller's.
  explicit PosixReadSteps(int file) : file_(file) {}

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
  const int file_;
};

// Of errno, after a call that takes a path has failed.
bool IsMissing() {
  return errno == ENOENT || errno == ENOTDIR;
}

class PosixFiles : public FileAccess {
public:
  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    // Non-blocking, so that a pipe of this name cannot hang the terminal.
    const int file = ::open(SystemPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
      return IsMissing() ? ReadResult::Missing : ReadResult::Failed;
    PosixReadSteps steps(file);
    const ReadResult result = RunRead(steps, limit, bytes);
    ::close(file);
    return result;
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
};

} // namespace

FileAccess& SystemFiles() {
  // Never destroyed, for files may be asked for until the process ends, and without storage of its
  // own, for the library may be unloaded long before that.
  alignas(PosixFiles) static unsigned char room[sizeof(PosixFiles)];
  static PosixFiles* const files = new (room) PosixFiles;
  return *files;
}

} // namespace tq
