// What happens when a caller breaks a contract that is documented to stop the program.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

// Called with one line of text, without a line end, that names the operation and the value at
// fault. The text is valid during the call. Should the handler return, the program is stopped all
// the same.
using InvalidArgumentHandler = void (*)(const char* message);

// Puts in another handler and returns the one before; null puts back the standard handler, which
// writes the line to the standard error stream. For tests and for a host that keeps crash reports.
// Any thread.
TQFRAMEWORK_API InvalidArgumentHandler SetInvalidArgumentHandler(InvalidArgumentHandler handler);

// Hands `message` to the handler and stops the program.
[[noreturn]] TQFRAMEWORK_API void InvalidArgument(const char* message);

// The same for an index outside of 0 .. size-1; `operation` names who was asked.
[[noreturn]] TQFRAMEWORK_API void IndexOutOfRange(const char* operation, int index, int size);

} // namespace tq
