// The files that a session leaves behind.
#pragma once

#include <string>

namespace demo {

// The sizes of the library's files in the directory, and what stands in those that are short.
// False, with `error` in one line, when one cannot be read.
bool ShowWritten(const std::string& directory, std::string& error);

} // namespace demo
