// The process-wide log of the library.
#pragma once

#include "platform/interface/TQSymbolNames.h"
#include "platform/services/TQLog.h"

namespace tq {

// Levels of the library's lines.
inline constexpr int kLogChange = TQLogChange;
inline constexpr int kLogGeneral = TQLogGeneral;

// The logger, or null before OpenLog and after CloseLog. It is created once and lives until the
// library is unloaded.
TQLog* Log();

// Creates the logger, unless there is one, and writes its first line. Its file is in the
// subdirectory "Log" of the directory of this library. Without memory there is no logger.
void OpenLog();

// Destroys the logger, if there is one. Managers may outlive it: their lines are then dropped. When
// the process ends and other libraries must not be called (ProcessIsEnding), the logger is only
// forgotten.
void CloseLog();

// Writes one line when there is a logger. User text is an argument, never the format.
template <typename... Arguments>
void LogLine(int level, const char* format, Arguments... arguments) {
  if (TQLog* log = Log())
    (*log)(level).write(format, arguments...);
}

// The same for a text that is not a format.
inline void LogLine(int level, const char* text) {
  LogLine(level, "%s", text);
}

} // namespace tq
