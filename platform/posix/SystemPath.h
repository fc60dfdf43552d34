// The library's paths in the form that POSIX takes. For bodies in this folder only.
#pragma once

#include <string>

#include "platform/FileAccess.h"

namespace tq {

// `path` with the library's own separator (FileAccess.h), and no other byte, replaced by "/".
inline std::string SystemPath(const char* path) {
  std::string result(path);
  const std::size_t separator = SeparatorOf(path);
  if (separator != std::string::npos)
    result[separator] = '/';
  return result;
}

} // namespace tq
