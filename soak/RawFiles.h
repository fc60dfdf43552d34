// Files as the system has them, without the library. Paths are as the library joins them.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace soak {

// The path as the system's own calls take it.
std::string SystemPath(std::string_view path);
// False when there is no such file.
bool ReadRaw(std::string_view path, std::string& bytes);
void WriteRaw(std::string_view path, std::string_view bytes);
// As if it had been written so many seconds from now.
void SetTimeAhead(std::string_view path, int seconds);

// Bytes by path, of all files of a directory but those that a save left under its temporary name.
using Contents = std::map<std::string, std::string>;
Contents ContentsOf(const std::string& directory);
// Makes the directory hold these files and no others; their own directories are not looked at.
void Fill(const std::string& directory, const Contents& contents);
// An existing directory for temporary files, in memory where the system has one.
std::string TemporaryDirectory();
void RemoveDirectory(const std::string& directory);

} // namespace soak
