// The process-wide log of the library: a file of the terminal's logging library, or a function of
// the terminal's in its place.
#pragma once

#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolNames.h"
#include "platform/interface/TQSymbolOptions.h"
#include "platform/services/TQLog.h"

namespace tq {

// Levels of the library's lines.
inline constexpr int kLogChange = TQLogChange;
inline constexpr int kLogGeneral = TQLogGeneral;
inline constexpr int kLogMisuse = TQLogMistakes;

// Where lines go.
struct LogTarget {
  CString directory;                // of the file; empty: "Log" beside this library
  int level = 0;                    // lines of lower levels are dropped
  TQLogCallback callback = nullptr; // in the place of the file
  void* context = nullptr;
};

// From now on; a file that is open is closed. Before OpenLog no file is opened. 0 when the file
// cannot be opened: lines are dropped then.
int SetLogTarget(const LogTarget& target);

// The logger, or null before OpenLog, after CloseLog, and while there is a callback. It is created
// once and lives until the library is unloaded.
TQLog* Log();

// Holds the logger while one of its members runs: the logging library may let the terminal choose
// another target, or another file, meanwhile. A logger that is replaced then goes with the last of
// these.
class LogUse {
public:
  LogUse();
  ~LogUse();
  LogUse(const LogUse&) = delete;
  LogUse& operator=(const LogUse&) = delete;
};

// Whether a line of that level goes anywhere.
bool LogTakes(int level);

// Hands a line to the terminal's function. Only while there is one.
void HandLine(int level, const CString& line);

// Creates the logger, unless there is one or a callback, and writes its first line. Without memory
// there is no logger.
void OpenLog();

// Destroys the logger, if there is one, and forgets the callback. Managers may outlive it: their
// lines are then dropped. When the process ends and other libraries must not be called
// (ProcessIsEnding), the logger is only forgotten.
void CloseLog();

// Writes one line where lines go. User text is an argument, never the format.
template <typename... Arguments>
void LogLine(int level, const char* format, Arguments... arguments) {
  if (!LogTakes(level))
    return;
  if (TQLog* log = Log()) {
    const LogUse use;
    (*log)(level).write(format, arguments...);
    return;
  }
  CString line;
  line.Format(format, arguments...);
  HandLine(level, line);
}

// The same for a text that is not a format.
inline void LogLine(int level, const char* text) {
  LogLine(level, "%s", text);
}

} // namespace tq
