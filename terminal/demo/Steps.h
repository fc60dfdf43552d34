// The steps of a session: what is done, what came of it, what the terminal was told.
#pragma once

#include <cstddef>
#include <string>

#include "platform/framework/CString.h"

namespace demo {

// Prints what happens and remembers the first step that went wrong.
class Steps {
public:
  Steps();

  // One line: the step, its result, and the notifications that came since the step before.
  void Step(const std::string& what, int result);
  void Note(const std::string& text);

  // Why the session failed, in one line; empty while all is well.
  const std::string& Error() const { return error_; }

private:
  std::string Told();

  size_t seen_;
  std::string error_;
};

// The text of the interface language, as the library takes it. In UTF-8.
CString InLanguage(const char* traditional, const char* simplified);

} // namespace demo
