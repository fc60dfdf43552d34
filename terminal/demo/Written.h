// The files that a session writes.
#pragma once

#include <string>

namespace demo {

// Prints the sizes of the library's files in the directory, and the contents of short ones. False,
// with `error` in one line, when one cannot be read.
bool ShowWritten(const std::string& directory, std::string& error);

} // namespace demo
