// The library's own module: where its file lies, its handle for resources, and how it is unloaded.
//
// When the library's objects are linked into a program (as unit tests do), the module is that
// program.
#pragma once

#include <string>

namespace tq {

// Longest module path that is handed out, in bytes without the NUL.
inline constexpr int kModulePathLimit = 260;

// Full path of the module file, with the operating system's separators, in the process's ANSI code
// page (on POSIX the path's raw bytes). A path longer than kModulePathLimit is cut (CutModulePath).
// Empty when the system does not tell. Any thread.
std::string OwnModulePath();

// The directory of the module file: DirectoryOf(OwnModulePath()).
std::string OwnModuleDirectory();

// The module's handle for message resources: on Windows its HINSTANCE, elsewhere the address where
// it is loaded. Not owned, never null, valid while the library is loaded.
void* OwnModule();

// `path` up to its last separator, which is not included; empty when it has none. By whole
// characters.
std::string DirectoryOf(const std::string& path);

// At most the first kModulePathLimit bytes of `path`, ending with a whole character.
std::string CutModulePath(std::string path);

// True while the library is unloaded because the process ends, in a way that forbids calling other
// libraries. On Windows the process's other threads have been stopped wherever they were by then,
// and a lock that one of them held is never released. Always false on POSIX, where libraries are
// unloaded while the process is still intact.
bool ProcessIsEnding();

} // namespace tq
