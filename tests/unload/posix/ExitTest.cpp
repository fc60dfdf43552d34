// A process that ends with the library loaded.
#include <gtest/gtest.h>

#include <cstdlib>

#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

namespace {

constexpr int kLooked = 10; // the loggers alive are added

void ExitWithLoggers() {
  std::_Exit(kLooked + standin::LoggersAlive());
}

void StartAndExit(const char* directory) {
  if (!LoadLogService())
    std::_Exit(1);
  const StartAndStop start = LoadModule();
  if (start == nullptr || start(directory) != 1 || standin::LoggersAlive() != 1)
    std::_Exit(2);
  std::exit(0);
}

// Registered in front of what the library registers when it is loaded, so it is called behind it.
void LookWhenTheLibraryHasEnded(const char* directory) {
  std::atexit(ExitWithLoggers);
  StartAndExit(directory);
}

// A service makes what it lives on when it is used first, which may be after the library came.
void LookWhenTheServiceEnds(const char* directory) {
  standin::OnCall("TQLog::storage", [] { std::atexit(ExitWithLoggers); });
  StartAndExit(directory);
}

TEST(Exit, TheLoggerIsDestroyedWhenTheProcessEnds) {
  const TempDir directory;
  EXPECT_EXIT(LookWhenTheLibraryHasEnded(directory.Path().c_str()),
              testing::ExitedWithCode(kLooked), "");
}

// The logger was destroyed when all that the log service had made was gone.
TEST(Exit, TheLoggerIsDestroyedBeforeItsServiceEnds) {
  const TempDir directory;
  EXPECT_EXIT(LookWhenTheServiceEnds(directory.Path().c_str()), testing::ExitedWithCode(kLooked),
              "");
}

} // namespace
