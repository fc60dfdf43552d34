#include "platform/Module.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>
#include <utility>

namespace tq {
namespace {

const char kInThisModule = 0;

std::string ProgramPath() {
  char path[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
  return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

} // namespace

std::string OwnModulePath() {
  Dl_info info;
  std::string path;
  char full[PATH_MAX];
  if (::dladdr(&kInThisModule, &info) != 0 && info.dli_fname != nullptr)
    path = info.dli_fname;
  // A program is known by the name that started it, which says where it lies only with a directory.
  if (path.find('/') == std::string::npos)
    path = ProgramPath();
  else if (path[0] != '/')
    path = ::realpath(path.c_str(), full) != nullptr ? std::string(full) : ProgramPath();
  return CutModulePath(std::move(path));
}

void* OwnModule() {
  Dl_info info;
  if (::dladdr(&kInThisModule, &info) != 0 && info.dli_fbase != nullptr)
    return info.dli_fbase;
  return const_cast<char*>(&kInThisModule);
}

std::string DirectoryOf(const std::string& path) {
  // A slash is no trail byte of any double-byte code page.
  const std::size_t separator = path.rfind('/');
  return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

bool ProcessIsEnding() {
  return false;
}

} // namespace tq
