// The steps of a session: the action, its result, and what the terminal was told.
#pragma once

#include <cstddef>
#include <string>

#include "platform/framework/CString.h"

namespace demo {

// Prints the steps and remembers the first failure.
class Steps {
public:
  Steps();

  // Prints one line: the step, its result, and the notifications since the previous step.
  void Step(const std::string& what, int result);
  void Note(const std::string& text);

  // Why the session failed, in one line; empty without a failure.
  const std::string& Error() const { return error_; }

private:
  std::string Told();

  size_t seen_;
  std::string error_;
};

// The text in the interface language, as the library takes it. In UTF-8.
CString InLanguage(const char* traditional, const char* simplified);

} // namespace demo
