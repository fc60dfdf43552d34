#include "tests/operations/Crash.h"

#include <gtest/gtest.h>

#include <cstdio>

#if defined(TQ_SANITIZE)
#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>
#endif

namespace operations {
namespace {

// Never destroyed: the leak detector reports after the last destructor.
std::string& Note() {
  static auto* const note = new std::string;
  return *note;
}

#if defined(TQ_SANITIZE)
void SayNote() {
  std::fprintf(stderr, "while running: %s\n", Note().c_str());
}
#endif

} // namespace

CrashNote::CrashNote(const std::string& text) {
  Note() = text;
#if defined(TQ_SANITIZE)
  __sanitizer_set_death_callback(SayNote);
#endif
}

CrashNote::~CrashNote() {
  Note().clear();
}

void ExpectNoLeak() {
#if defined(TQ_SANITIZE)
  EXPECT_EQ(__lsan_do_recoverable_leak_check(), 0) << "memory was lost";
#endif
}

} // namespace operations
