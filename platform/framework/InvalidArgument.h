// Programming errors of callers that are documented to stop the program.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

// Called with one line of text, without a line end, that names the operation and the wrong value.
// The text is valid during the call. If the handler returns, the program is stopped nevertheless.
using InvalidArgumentHandler = void (*)(const char* message);

// Replaces the handler and returns the one before; null restores the standard handler, which writes
// the line to the standard error stream. For tests, and for hosts that keep crash reports. Any
// thread.
TQFRAMEWORK_API InvalidArgumentHandler SetInvalidArgumentHandler(InvalidArgumentHandler handler);

// Hands `message` to the handler and stops the program.
[[noreturn]] TQFRAMEWORK_API void InvalidArgument(const char* message);

// The same for an index outside of 0 .. size-1 given to `operation`.
[[noreturn]] TQFRAMEWORK_API void IndexOutOfRange(const char* operation, int index, int size);

} // namespace tq
