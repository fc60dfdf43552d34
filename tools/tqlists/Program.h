// The whole program, made without a process so that tests run it too.
#pragma once

#include <string>
#include <vector>

#include "tools/tqlists/files/Streams.h"

namespace tqlists {

// `words` are those behind the program's name. Returns the exit code. Nothing throws.
int Run(const std::vector<std::string>& words, Streams& streams) noexcept;

} // namespace tqlists
