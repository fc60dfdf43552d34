// The process-wide log of the library.
#pragma once

#include "platform/services/TQLog.h"

namespace tq {

// Levels of the lines that the library writes. Terminals filter by them: do not change.
inline constexpr int kLogChange = 64; // lists and groups changed or were found odd
inline constexpr int kLogGeneral = 256;

// The logger, or null before OpenLog and after CloseLog. It is created once and lives until the
// library is unloaded.
TQLog* Log();

// Creates the logger in the subdirectory "Log" of the directory that holds this library, unless
// there is one, and writes its first line. When it cannot be allocated it stays absent.
void OpenLog();

// Destroys the logger, if there is one. Managers may outlive it: their lines are then dropped.
// Where the process ends and other libraries may not be called (platform/Module.h), it is only
// let go.
void CloseLog();

// Writes one line when there is a logger. User text is an argument, never the format.
template <typename... Arguments>
void LogLine(int level, const char* format, Arguments... arguments) {
  if (TQLog* log = Log())
    (*log)(level).write(format, arguments...);
}

// The same for a text that is no format.
inline void LogLine(int level, const char* text) {
  LogLine(level, "%s", text);
}

} // namespace tq
