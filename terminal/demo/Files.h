// File access of the demo's own, to check what the library wrote.
#pragma once

#include <string>

namespace demo {

bool IsDirectory(const std::string& path);

enum class ReadResult { Read, Missing, Unreadable };

// Reads all bytes of a file. Empties `bytes` when that fails.
ReadResult ReadFile(const std::string& path, std::string& bytes);

bool WriteFile(const std::string& path, const std::string& bytes);

} // namespace demo
