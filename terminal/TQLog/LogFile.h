// What a logger needs of the file system. Paths are in the process's ANSI code page and joined by
// backslashes.
#pragma once

#include <cstdio>
#include <ctime>
#include <string>

namespace standin {

// Opens a file of the directory for appending text lines that end in a bare line feed; the last
// level of the directory is created when missing. Null when it cannot be opened.
std::FILE* OpenLogFile(const std::string& directory, const std::string& name);

// Local time.
std::tm Now();

} // namespace standin
