// The file system as a logger needs it. Paths are in the process's ANSI code page, joined by
// backslashes.
#pragma once

#include <cstdio>
#include <ctime>
#include <string>

namespace standin {

// Opens a file of the directory for appending text lines that end in LF. Creates the last level of
// the directory if it is missing. Null on failure.
std::FILE* OpenLogFile(const std::string& directory, const std::string& name);

// Local time.
std::tm Now();

} // namespace standin
