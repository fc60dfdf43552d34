#include "tools/tqlists/files/SystemFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tqlists {
namespace {

constexpr mode_t kNewFileMode = 0666; // less the process's umask
constexpr mode_t kNewDirectoryMode = 0777;
constexpr mode_t kRights = 07777;
constexpr int kLongestLinkChain = 40; // as many as the kernel follows

// The replaced file's rights stay: a private file does not become a public one.
void KeepRights(const std::string& from, const std::string& to) {
  struct stat info;
  if (::stat(from.c_str(), &info) == 0)
    ::chmod(to.c_str(), info.st_mode & kRights);
}

// Makes the new name survive a power failure.
void FlushDirectoryOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string directory = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const int file = ::open(directory.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0)
    return;
  ::fsync(file);
  ::close(file);
}

// A second name for the file, which the system refuses when the name is taken. Where it knows no
// second names at all, the file is renamed.
Placing PlaceNew(const std::string& temporary, const std::string& target) {
  if (::link(temporary.c_str(), target.c_str()) == 0) {
    ::unlink(temporary.c_str());
    return Placing::Placed;
  }
  if (errno == EEXIST || ::access(target.c_str(), F_OK) == 0)
    return Placing::Taken;
  return ::rename(temporary.c_str(), target.c_str()) == 0 ? Placing::Placed : Placing::Failed;
}

} // namespace

bool IdentityOf(const std::string& path, FileIdentity& identity) {
  struct stat info;
  if (::stat(path.c_str(), &info) != 0)
    return false;
  identity = {info.st_dev, info.st_ino};
  return true;
}

std::FILE* OpenFile(const std::string& path) {
  return std::fopen(path.c_str(), "rbe");
}

std::size_t SizeOf(std::FILE* file) {
  struct stat info;
  const bool regular = ::fstat(::fileno(file), &info) == 0 && S_ISREG(info.st_mode);
  return regular ? static_cast<std::size_t>(info.st_size) : 0;
}

std::FILE* CreateNewFile(const std::string& path) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
  return file < 0 ? nullptr : ::fdopen(file, "wb");
}

bool FlushToDisk(std::FILE* file) {
  return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
}

Placing PutInPlace(const std::string& temporary, const std::string& target, bool replace) {
  Placing placed = Placing::Failed;
  if (!replace) {
    placed = PlaceNew(temporary, target);
  } else {
    KeepRights(target, temporary);
    if (::rename(temporary.c_str(), target.c_str()) == 0)
      placed = Placing::Placed;
  }
  if (placed == Placing::Placed)
    FlushDirectoryOf(target);
  return placed;
}

void RemoveFile(const std::string& path) {
  ::unlink(path.c_str());
}

// The last link may point to nothing yet. Of links in a circle it is one.
std::string BehindLinks(const std::string& path) {
  std::filesystem::path real = path;
  std::error_code error;
  for (int i = 0; i < kLongestLinkChain; ++i) {
    const std::filesystem::path next = std::filesystem::read_symlink(real, error);
    if (error)
      break;
    real = real.parent_path() / next; // next alone when that is absolute
  }
  return real.string();
}

bool MakeDirectory(const std::string& path) {
  struct stat info;
  return ::mkdir(path.c_str(), kNewDirectoryMode) == 0 ||
         (::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode));
}

} // namespace tqlists
