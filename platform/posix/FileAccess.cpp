#include "platform/SaveSteps.h"
#include "platform/SystemFiles.h"
#include "platform/posix/SystemPath.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace tq {
namespace {

bool ReadExactly(int file, std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t got = ::read(file, bytes.data() + done, bytes.size() - done);
    if (got < 0 && errno == EINTR)
      continue;
    if (got <= 0)
      return false;
    done += static_cast<std::size_t>(got);
  }
  char more;
  return ::read(file, &more, 1) == 0;
}

ReadResult ReadOpenFile(int file, std::size_t limit, std::string& bytes) {
  struct stat info;
  if (::fstat(file, &info) != 0 || !S_ISREG(info.st_mode))
    return ReadResult::Failed;
  const auto size = static_cast<std::size_t>(info.st_size);
  if (size > limit)
    return ReadResult::TooLarge;
  bytes.resize(size);
  if (ReadExactly(file, bytes))
    return ReadResult::Ok;
  bytes.clear();
  return ReadResult::Failed;
}

class PosixFiles : public FileAccess {
public:
  ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    // Non-blocking, so that a pipe of this name cannot hang the terminal.
    const int file = ::open(SystemPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
      return errno == ENOENT || errno == ENOTDIR ? ReadResult::Missing : ReadResult::Failed;
    const ReadResult result = ReadOpenFile(file, limit, bytes);
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

  std::int64_t LastWriteTime(const char* path) override {
    constexpr std::int64_t second = 1'000'000'000;
    struct stat info;
    return ::stat(SystemPath(path).c_str(), &info) != 0
               ? 0
               : info.st_mtim.tv_sec * second + info.st_mtim.tv_nsec;
  }

  bool RenameFile(const char* from, const char* to) override {
    return FileExists(from) && ::rename(SystemPath(from).c_str(), SystemPath(to).c_str()) == 0;
  }
};

} // namespace

FileAccess& SystemFiles() {
  // Never destroyed, for files may be asked for until the process ends, and without storage of its own, for
  // the library may be unloaded long before that.
  alignas(PosixFiles) static unsigned char room[sizeof(PosixFiles)];
  static PosixFiles* const files = new (room) PosixFiles;
  return *files;
}

} // namespace tq
