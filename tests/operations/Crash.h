// Names the current test case when a sanitizer ends the process.
#pragma once

#include <string>

namespace operations {

// During its lifetime a sanitizer's crash report shows this text.
class CrashNote {
public:
  explicit CrashNote(const std::string& text);
  ~CrashNote();
  CrashNote(const CrashNote&) = delete;
  CrashNote& operator=(const CrashNote&) = delete;
};

// Fails the test when memory has leaked. Without the sanitizer's leak detector it does nothing.
void ExpectNoLeak();

} // namespace operations
