// The library's paths as POSIX takes them.
#pragma once

#include <string>

namespace tq {

// `path` with the library's own separator, and no other byte, turned into "/".
std::string SystemPath(const char* path);

} // namespace tq
