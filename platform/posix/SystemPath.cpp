#include "platform/posix/SystemPath.h"

#include "platform/FileAccess.h"

namespace tq {

std::string SystemPath(const char* path) {
  std::string result(path);
  const std::size_t separator = SeparatorOf(path);
  if (separator != std::string::npos)
    result[separator] = '/';
  return result;
}

} // namespace tq
