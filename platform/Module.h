// The library's own module file: where it lies, and its handle for resources.
//
// When the library's objects are linked into a program (as unit tests do), the module is that
// program.
#pragma once

#include <string>

namespace tq {

// Longest module path that is handed out, in bytes without the NUL; a longer one is cut there, as
// the operating system's call cuts it, but never within a double-byte character.
inline constexpr int kModulePathLimit = 260;

// Full path of the module file, with the operating system's separators, in the process's ANSI code
// page (on POSIX the path's raw bytes). Empty when the system does not tell. Any thread.
std::string OwnModulePath();

// The directory of the module file: OwnModulePath cut before its last separator, by whole
// characters. No trailing separator. Empty when the path is.
std::string OwnModuleDirectory();

// The module's handle for message resources: on Windows its HINSTANCE, elsewhere the address where
// it is loaded. Not owned, never null, valid while the library is loaded.
void* OwnModule();

// `path` cut before its last separator, by whole characters; empty when it has none.
std::string DirectoryOf(const std::string& path);

} // namespace tq
