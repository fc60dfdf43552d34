// What the program asks of the operating system about files. A body for each system lies in posix/
// and win32/.
//
// A path is in UTF-8 on Windows, and the system's own bytes elsewhere. Nothing throws but
// std::bad_alloc.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace tqlists {

// Which file a name means: two names of one file have the same.
struct FileIdentity {
  std::uint64_t volume = 0;
  std::uint64_t index = 0;
  bool operator==(const FileIdentity&) const = default;
};

// False when the name means no file that can be looked at.
bool IdentityOf(const std::string& path, FileIdentity& identity);

// For reading, as bytes; null when it cannot be opened.
std::FILE* OpenFile(const std::string& path);

// The bytes of a regular file, or 0: for reserving room before it is read.
std::size_t SizeOf(std::FILE* file);

// Creates a file for writing bytes; null when it exists or cannot be created.
std::FILE* CreateNewFile(const std::string& path);

// Has what was written reach the disk.
bool FlushToDisk(std::FILE* file);

enum class Placing {
  Placed,
  Taken, // there is a file of that name, and it was not to be replaced
  Failed,
};

// Gives the file `temporary` the name `target`, in one step: whatever happens, `target` is the old
// file or the new one.
Placing PutInPlace(const std::string& temporary, const std::string& target, bool replace);

void RemoveFile(const std::string& path);

// `path`, or the file that it is a symbolic link to.
std::string BehindLinks(const std::string& path);

// Whether there is a directory of that name now, made or found.
bool MakeDirectory(const std::string& path);

} // namespace tqlists
