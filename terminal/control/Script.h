// What every operation of a service does first: records itself, runs the test's actions, and asks
// whether it has to fail.
#pragma once

#include <string>
#include <string_view>

#include "terminal/StandInApi.h"

namespace standin {

TQSTANDIN_API bool Recording();
TQSTANDIN_API void Record(std::string_view operation, std::string arguments);
// Whether there are orders of FailCall or FailAlways; the second counts a call against them.
extern TQSTANDIN_API bool failuresOrdered;
TQSTANDIN_API bool CountAgainstOrders(std::string_view operation);

// Whether there are actions of OnCall or OnEachCall; the second runs those of an operation.
extern TQSTANDIN_API bool actionsOrdered;
TQSTANDIN_API void RunAction(std::string_view operation);

// Whether this call has to fail. Reading an attribute asks too, so without orders this must cost
// nothing.
inline bool OrderedToFail(std::string_view operation) {
  return failuresOrdered && CountAgainstOrders(operation);
}

inline void AppendArgument(std::string& text, const char* argument) {
  text += argument ? argument : "(null)";
}
inline void AppendArgument(std::string& text, long argument) {
  text += std::to_string(argument);
}
inline void AppendArgument(std::string& text, unsigned argument) {
  text += std::to_string(argument);
}
inline void AppendArgument(std::string& text, int argument) {
  text += std::to_string(argument);
}

template <class... Arguments> std::string JoinArguments(Arguments... arguments) {
  std::string text;
  [[maybe_unused]] const char* separator = ""; // unused when there are no arguments
  ((text += separator, AppendArgument(text, arguments), separator = ","), ...);
  return text;
}

// Begins a call that is not recorded and cannot fail.
inline void NoteCall(std::string_view operation) {
  if (actionsOrdered)
    RunAction(operation);
}

// Begins a call that is not recorded; false when it has to fail.
inline bool BeginQuietly(std::string_view operation) {
  NoteCall(operation);
  return !OrderedToFail(operation);
}

// Begins a service call; false when it has to fail. `arguments` are the inputs, in order.
template <class... Arguments> bool Begin(std::string_view operation, Arguments... arguments) {
  if (Recording())
    Record(operation, JoinArguments(arguments...));
  return BeginQuietly(operation);
}

} // namespace standin
