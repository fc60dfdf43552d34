// The debug mode: mistakes that a terminal, or one of its services, makes against the contracts of
// the headers are looked for and named in the log.
//
// While it is off, a check is a look at one variable: nothing else is done, and no text is made.
#pragma once

#include <string_view>

#include "platform/Compiler.h"
#include "platform/Text.h"
#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolOptions.h"
#include "platform/interface/TQSymbolProblem.h"

namespace tq {

// Set it by SetDebugMode only.
inline TQDebugMode debugMode = TQDebugOff;

inline bool IsDebugging() {
  return debugMode != TQDebugOff;
}

// From now on. The thread of the next call counts as the terminal's.
void SetDebugMode(TQDebugMode mode);
// The mode that the environment variable TQSYMBOL_DEBUG asks for, "log" or "stop", at the first
// call in the process.
void ReadDebugMode();

// One mistake: a line of level kLogMisuse, or on the error stream where there is no log, and the
// problem of the operation that runs. With TQDebugStop the process ends here.
void ReportMistake(TQProblem kind, const CString& text);

template <typename... Arguments>
void ReportMistake(TQProblem kind, const char* format, Arguments... arguments) {
  CString text;
  text.Format(format, arguments...);
  ReportMistake(kind, text);
}

inline void ReportMistake(TQProblem kind, const char* text) {
  ReportMistake(kind, CString(text));
}

// The slow halves of CheckCall.
bool CheckThread(const char* operation);
void CheckText(const char* operation, std::string_view names, int index, std::string_view text);

inline std::string_view BytesOf(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}
inline std::string_view BytesOf(const CString& text) {
  return ViewOf(text);
}

// What CheckCall does in the debug mode. Out of line, so that an operation is as small as without.
template <typename... Texts>
TQ_RARE void CheckCallNow(const char* operation, [[maybe_unused]] const char* names,
                          const Texts&... texts) {
  if (!CheckThread(operation))
    return;
  [[maybe_unused]] int index = 0;
  (CheckText(operation, names, index++, BytesOf(texts)), ...);
}

// An operation of the interface begins: it comes from the terminal's one thread, and its texts are
// of the process's code page. `names` are those of the texts, joined by ",".
template <typename... Texts>
inline void CheckCall(const char* operation, const char* names = "", const Texts&... texts) {
  if (IsDebugging()) [[unlikely]]
    CheckCallNow(operation, names, texts...);
}

} // namespace tq
