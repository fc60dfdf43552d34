// The library's paths as Windows takes them.
#pragma once

#include <string>

namespace tq {

// `path`, in the ANSI code page, in UTF-16. The library's own separator is the system's here.
std::wstring SystemPath(const char* path);

} // namespace tq
