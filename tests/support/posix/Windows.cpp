#include "tests/support/Windows.h"

#include <cstdlib>
#include <dlfcn.h>

#include <gtest/gtest.h>

#include "platform/framework/window/CDialog.h"

void PrepareWindows() {
  ::setenv("TQSYMBOL_WINDOWS", "memory", 0); // nobody looks on, unless it is said
  if (const char* const host = std::getenv("TQ_TEST_HOST")) {
    void* const library = ::dlopen(host, RTLD_NOW | RTLD_LOCAL);
    void* const start = library == nullptr ? nullptr : ::dlsym(library, "tqTestHost");
    if (start == nullptr) {
      ADD_FAILURE() << ::dlerror();
      return;
    }
    reinterpret_cast<void (*)()>(start)();
  }
  CDialog none(0);
  none.DoModal(); // there is no such dialog; its screen was there all the same
}
