// A process that ends with the library loaded. (On Windows libraries go after everything that a
// program could look with.)
#include <gtest/gtest.h>

#include <cstdlib>

#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

namespace {

// Registered in front of what the library registers when it is loaded, so it is called behind it.
void ExitWithLoggers() {
  std::_Exit(10 + standin::LoggersAlive());
}

void StartAndExit(const char* directory) {
  std::atexit(ExitWithLoggers);
  const StartAndStop start = LoadModule();
  if (start == nullptr || start(directory) != 1 || standin::LoggersAlive() != 1)
    std::_Exit(1);
  std::exit(0);
}

TEST(Exit, TheLoggerIsDestroyedWhenTheProcessEnds) {
  const TempDir directory;
  EXPECT_EXIT(StartAndExit(directory.Path().c_str()), testing::ExitedWithCode(10), "");
}

} // namespace
