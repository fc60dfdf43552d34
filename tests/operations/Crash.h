// Which cell it was, when the sanitizer ends the process in the middle of one.
#pragma once

#include <string>

namespace operations {

// While it lives a crash is reported with this text, where a sanitizer reports it.
class CrashNote {
public:
  explicit CrashNote(const std::string& text);
  ~CrashNote();
  CrashNote(const CrashNote&) = delete;
  CrashNote& operator=(const CrashNote&) = delete;
};

// Fails the test when memory is lost that nothing points to any more; without the sanitizer's
// leak detector it does nothing, for the process's end would not tell either.
void ExpectNoLeak();

} // namespace operations
