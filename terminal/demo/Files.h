// The few looks at files that the demo takes for itself, to check what the library did to them.
#pragma once

#include <string>

namespace demo {

bool IsDirectory(const std::string& path);

enum class ReadResult { Read, Missing, Unreadable };

// All bytes of a file. `bytes` is emptied when there are none to be had.
ReadResult ReadFile(const std::string& path, std::string& bytes);

bool WriteFile(const std::string& path, const std::string& bytes);

} // namespace demo
