#include "terminal/control/OwnDirectory.h"

#include <cstdlib>
#include <dlfcn.h>

namespace standin {
namespace {

const char kInThisLibrary = 0;

} // namespace

std::string OwnDirectory() {
  Dl_info info;
  if (::dladdr(&kInThisLibrary, &info) == 0 || info.dli_fname == nullptr)
    return std::string();
  char* const full = ::realpath(info.dli_fname, nullptr);
  const std::string path = full != nullptr ? full : "";
  std::free(full);
  const std::size_t end = path.rfind('/');
  return end == std::string::npos ? std::string() : path.substr(0, end);
}

} // namespace standin
