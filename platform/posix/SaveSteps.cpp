#include "platform/SaveSteps.h"

#include "platform/posix/SystemPath.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tq {
namespace {

constexpr int kLongestLinkChain = 40; // as many as the kernel follows
constexpr int kLockTries = 50;
constexpr useconds_t kLockPause = 10'000; // microseconds; together the half second of FileAccess.h
constexpr mode_t kNewFileMode = 0666;     // less the process's umask

// Resolves symbolic links of the file itself, even if the last one points to nothing yet. Opening
// the result of a chain that is too long fails.
std::string FollowLinks(std::string path) {
  char link[PATH_MAX];
  for (int i = 0; i < kLongestLinkChain; ++i) {
    const ssize_t length = ::readlink(path.c_str(), link, sizeof link);
    if (length <= 0)
      break;
    const std::size_t slash = path.rfind('/');
    const bool absolute = link[0] == '/' || slash == std::string::npos;
    path.erase(absolute ? 0 : slash + 1);
    path.append(link, static_cast<std::size_t>(length));
  }
  return path;
}

// Distinguishes errors that concern only the replacing (rights on the directory, a file that is a
// mount point, a name without room for the suffix, a temporary name that is not a file's) from
// those of the disk.
StepResult WhyNotReplaced() {
  switch (errno) {
  case EACCES:
  case EPERM:
  case EBUSY:
  case EXDEV:
  case ENAMETOOLONG:
  case ELOOP:  // somebody put a link under the temporary name,
  case EISDIR: // a directory,
  case ENXIO:  // a pipe that nobody reads, a socket, a device that is not there,
  case ENODEV:
  case ETXTBSY: // a program that runs
    return StepResult::Refused;
  default:
    return StepResult::Failed;
  }
}

// One call, repeated only when a signal interrupts it before it wrote. The kernel writes at most 2
// GiB.
std::size_t WriteOnce(int file, const void* bytes, std::size_t size) {
  ssize_t written;
  do {
    written = ::write(file, bytes, size);
  } while (written < 0 && errno == EINTR);
  return written < 0 ? 0 : static_cast<std::size_t>(written);
}

class File {
public:
  File() = default;
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { Close(); }

  bool Open(const std::string& path, int flags, mode_t mode = kNewFileMode) {
    Close();
    fd_ = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    return fd_ >= 0;
  }
  bool Close() {
    const int fd = fd_;
    fd_ = -1;
    return fd < 0 || ::close(fd) == 0;
  }
  bool IsOpen() const { return fd_ >= 0; }
  int Get() const { return fd_; }

private:
  int fd_ = -1;
};

class PosixSaveSteps : public SaveSteps {
public:
  explicit PosixSaveSteps(const char* path)
      : target_(FollowLinks(SystemPath(path))), temporary_(target_ + kTemporarySuffix) {}

  StepResult OpenTarget() override;
  StepResult OpenTemporary() override;
  std::size_t WriteTemporary(const void* bytes, std::size_t size) override;
  bool FlushTemporary() override { return ::fsync(temporaryFile_.Get()) == 0; }
  StepResult ReplaceTarget() override;
  void FlushDirectory() override;
  void RemoveTemporary() override;
  bool ReserveTarget(std::size_t size) override;
  std::size_t WriteTarget(const void* bytes, std::size_t size) override;
  bool FlushTarget(std::size_t size) override;
  bool CloseTarget() override { return targetFile_.Close(); }
  void RemoveNewTarget() override;

private:
  bool IsTemporary(const struct stat& open) const;
  StepResult LockTemporary(struct stat& locked);
  StepResult EmptyTemporary(const struct stat& left);

  const std::string target_;
  const std::string temporary_;
  File targetFile_;
  File temporaryFile_;
  struct stat old_ = {}; // the target before the save, when existed_
  bool existed_ = false;
  bool created_ = false; // in place, by this save
};

StepResult PosixSaveSteps::OpenTarget() {
  // Non-blocking, so that a pipe of this name cannot hang the terminal.
  if (!targetFile_.Open(target_, O_WRONLY | O_NONBLOCK))
    return errno == ENOENT ? StepResult::Missing : StepResult::Failed;
  existed_ = ::fstat(targetFile_.Get(), &old_) == 0;
  return existed_ ? StepResult::Ok : StepResult::Failed;
}

// Whether the open file still has the temporary name.
bool PosixSaveSteps::IsTemporary(const struct stat& open) const {
  struct stat named;
  return ::stat(temporary_.c_str(), &named) == 0 && named.st_ino == open.st_ino &&
         named.st_dev == open.st_dev;
}

// The lock keeps a second process from writing into a temporary file that is about to replace the
// target; the kernel releases it when its process ends. Failed when another process holds it all
// the time.
StepResult PosixSaveSteps::LockTemporary(struct stat& locked) {
  for (int i = 0; i < kLockTries; ++i) {
    if (!temporaryFile_.Open(temporary_, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK,
                             existed_ ? old_.st_mode & 07777 : kNewFileMode))
      return WhyNotReplaced();
    if (::fstat(temporaryFile_.Get(), &locked) != 0)
      return StepResult::Failed;
    if (!S_ISREG(locked.st_mode))
      return StepResult::Refused;
    if (locked.st_nlink > 1 && IsTemporary(locked)) {
      // A hard link to another file, perhaps to the target, which no save creates. Only this name
      // is removed.
      if (::unlink(temporary_.c_str()) != 0 && errno != ENOENT)
        return WhyNotReplaced();
      continue;
    }
    // On a file system without locks the save goes on without one.
    if (::flock(temporaryFile_.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) {
      if (::fstat(temporaryFile_.Get(), &locked) != 0)
        return StepResult::Failed;
      if (IsTemporary(locked))
        return StepResult::Ok;
      continue; // its holder has just renamed or deleted it
    }
    ::usleep(kLockPause);
  }
  return StepResult::Failed;
}

// `left` describes the temporary file as it was found; a killed save may have left bytes in it.
StepResult PosixSaveSteps::EmptyTemporary(const struct stat& left) {
  const int file = temporaryFile_.Get();
  if (left.st_size != 0 && ::ftruncate(file, 0) != 0)
    return StepResult::Failed;
  if (!existed_)
    return StepResult::Ok;
  if ((left.st_uid != old_.st_uid || left.st_gid != old_.st_gid) &&
      ::fchown(file, old_.st_uid, old_.st_gid) != 0)
    return StepResult::Refused; // the owner would change
  if (left.st_mode != old_.st_mode && ::fchmod(file, old_.st_mode & 07777) != 0)
    return StepResult::Refused;
  return StepResult::Ok;
}

StepResult PosixSaveSteps::OpenTemporary() {
  // A device or pipe of this name is written, not replaced.
  if (existed_ && !S_ISREG(old_.st_mode))
    return StepResult::Refused;
  struct stat left;
  StepResult result = LockTemporary(left);
  if (result != StepResult::Ok) {
    temporaryFile_.Close();
    return result;
  }
  result = EmptyTemporary(left);
  if (result != StepResult::Ok)
    RemoveTemporary();
  return result;
}

std::size_t PosixSaveSteps::WriteTemporary(const void* bytes, std::size_t size) {
  return WriteOnce(temporaryFile_.Get(), bytes, size);
}

StepResult PosixSaveSteps::ReplaceTarget() {
  // The lock is held until the name is gone.
  if (::rename(temporary_.c_str(), target_.c_str()) != 0)
    return WhyNotReplaced();
  temporaryFile_.Close();
  return StepResult::Ok;
}

void PosixSaveSteps::FlushDirectory() {
  const std::size_t slash = target_.rfind('/');
  File directory;
  if (directory.Open(slash == std::string::npos ? "." : target_.substr(0, slash + 1),
                     O_RDONLY | O_DIRECTORY))
    ::fsync(directory.Get());
}

void PosixSaveSteps::RemoveTemporary() {
  if (!temporaryFile_.IsOpen())
    return;
  ::unlink(temporary_.c_str());
  temporaryFile_.Close();
}

bool PosixSaveSteps::ReserveTarget(std::size_t size) {
  if (!targetFile_.IsOpen()) {
    if (!targetFile_.Open(target_, O_WRONLY | O_CREAT))
      return false;
    created_ = true;
  }
  const auto wanted = static_cast<off_t>(size);
  if ((existed_ && !S_ISREG(old_.st_mode)) || wanted <= old_.st_size)
    return true;
  if (::posix_fallocate(targetFile_.Get(), old_.st_size, wanted - old_.st_size) == 0)
    return true;
  // On failure the old file gets its old length back, whether or not it grew.
  [[maybe_unused]] const int cut = ::ftruncate(targetFile_.Get(), old_.st_size);
  return false;
}

std::size_t PosixSaveSteps::WriteTarget(const void* bytes, std::size_t size) {
  return WriteOnce(targetFile_.Get(), bytes, size);
}

bool PosixSaveSteps::FlushTarget(std::size_t size) {
  if (existed_ && !S_ISREG(old_.st_mode))
    return true; // a device or pipe has neither length nor cache
  const int file = targetFile_.Get();
  return ::ftruncate(file, static_cast<off_t>(size)) == 0 && ::fsync(file) == 0;
}

void PosixSaveSteps::RemoveNewTarget() {
  if (created_)
    ::unlink(target_.c_str());
}

} // namespace

std::unique_ptr<SaveSteps> MakeSaveSteps(const char* path) {
  return std::make_unique<PosixSaveSteps>(path);
}

} // namespace tq
