#include "tests/platform/posix/FailingCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <utility>

namespace tqtest {
namespace {

Faults* inForce = nullptr;

// The fault that hits this call. What is called meanwhile is not hit.
const Fault* Hit(const char* call) {
  Faults* const faults = std::exchange(inForce, nullptr);
  const Fault* const hit = faults == nullptr ? nullptr : faults->Strike(call);
  if (hit != nullptr && hit->before)
    hit->before();
  inForce = faults;
  return hit;
}

template <typename Function> Function Real(const char* name, Function) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

// The call, or the error that stands in its place.
template <typename Function, typename... Arguments>
auto Call(const char* name, Function function, Arguments... arguments)
    -> decltype(function(arguments...)) {
  const Fault* const hit = Hit(name);
  if (hit != nullptr && hit->error != 0) {
    errno = hit->error;
    return -1;
  }
  return Real(name, function)(arguments...);
}

// The same with a number of bytes, which may be halved.
template <typename Function, typename Bytes, typename... Rest>
ssize_t Transfer(const char* name, Function function, int file, Bytes bytes, size_t size,
                 Rest... rest) {
  const Fault* const hit = Hit(name);
  if (hit != nullptr && hit->error != 0) {
    errno = hit->error;
    return -1;
  }
  const bool half = hit != nullptr && hit->failure == Failure::Short;
  return Real(name, function)(file, bytes, half ? size / 2 : size, rest...);
}

} // namespace

Faults::Faults(std::vector<Fault> faults) : faults_(std::move(faults)) {
  inForce = this;
}

Faults::~Faults() {
  inForce = nullptr;
}

const Fault* Faults::Strike(const char* call) {
  const int turn = ++made_[call];
  for (const Fault& fault : faults_) {
    if (fault.call == call && (fault.turn == 0 || fault.turn == turn))
      return &fault;
  }
  return nullptr;
}

} // namespace tqtest

using tqtest::Call;
using tqtest::Transfer;

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return Call("open", &open, path, flags, mode);
}
int stat(const char* path, struct stat* info) noexcept {
  return Call("stat", static_cast<int (*)(const char*, struct stat*)>(&stat), path, info);
}
int fstat(int file, struct stat* info) noexcept {
  return Call("fstat", &fstat, file, info);
}
ssize_t pread(int file, void* bytes, size_t size, off_t start) {
  return Transfer("pread", &pread, file, bytes, size, start);
}
ssize_t write(int file, const void* bytes, size_t size) {
  return Transfer("write", &write, file, bytes, size);
}
int fsync(int file) {
  return Call("fsync", &fsync, file);
}
int rename(const char* from, const char* to) noexcept {
  return Call("rename", &rename, from, to);
}
int unlink(const char* path) noexcept {
  return Call("unlink", &unlink, path);
}
int ftruncate(int file, off_t size) noexcept {
  return Call("ftruncate", &ftruncate, file, size);
}
int fchmod(int file, mode_t mode) noexcept {
  return Call("fchmod", &fchmod, file, mode);
}
int fchown(int file, uid_t owner, gid_t group) noexcept {
  return Call("fchown", &fchown, file, owner, group);
}
int flock(int file, int operation) noexcept {
  return Call("flock", &flock, file, operation);
}
ssize_t readlink(const char* path, char* link, size_t size) noexcept {
  return Call("readlink", &readlink, path, link, size);
}
// Answers with the error itself.
int posix_fallocate(int file, off_t start, off_t size) {
  const tqtest::Fault* const hit = tqtest::Hit("posix_fallocate");
  if (hit != nullptr && hit->error != 0)
    return hit->error;
  return tqtest::Real("posix_fallocate", &posix_fallocate)(file, start, size);
}
// A close that fails has closed.
int close(int file) {
  const tqtest::Fault* const hit = tqtest::Hit("close");
  const int result = tqtest::Real("close", &close)(file);
  if (hit == nullptr || hit->error == 0)
    return result;
  errno = hit->error;
  return -1;
}
}
