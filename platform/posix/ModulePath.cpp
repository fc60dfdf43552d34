#include "platform/ModulePath.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>

namespace tq {
namespace {

const char g_inThisModule = 0;

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
  // A program is known by the name that started it, which says where it lies only with a directory.
  if (::dladdr(&g_inThisModule, &info) == 0 || info.dli_fname == nullptr)
    path = ProgramPath();
  else if (info.dli_fname[0] == '/')
    path = info.dli_fname;
  else if (std::string(info.dli_fname).find('/') != std::string::npos &&
           ::realpath(info.dli_fname, full) != nullptr)
    path = full;
  else
    path = ProgramPath();
  if (path.size() > ModulePathLimit)
    path.resize(ModulePathLimit);
  return path;
}

void* OwnModule() {
  Dl_info info;
  if (::dladdr(&g_inThisModule, &info) != 0 && info.dli_fbase != nullptr)
    return info.dli_fbase;
  return const_cast<char*>(&g_inThisModule);
}

std::string DirectoryOf(const std::string& path) {
  // A slash is no trail byte of any double-byte code page.
  const std::size_t separator = path.rfind('/');
  return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

} // namespace tq
