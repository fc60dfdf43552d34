// What TempDir needs of the file system. Paths are bytes in the process's code page.
#pragma once

#include <string>
#include <vector>

namespace tempfiles {

extern const char kSeparator;

// A fresh empty directory among the system's temporary files; empty on failure.
std::string MakeFresh();
bool MakeDirectory(const std::string& path);
bool IsDirectory(const std::string& path);
bool Exists(const std::string& path);
// The entries but "." and "..", in no order.
std::vector<std::string> List(const std::string& path);
// With all that is in it, read-only or not.
void RemoveTree(const std::string& path);

} // namespace tempfiles
