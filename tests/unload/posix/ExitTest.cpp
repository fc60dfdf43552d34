// A process that ends with the library loaded.
#include <gtest/gtest.h>

#include <cstdlib>

#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

namespace {

constexpr int kLooked = 10; // plus the number of live loggers

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

// Registered before anything of the library, so it is called after it.
void LookWhenTheLibraryHasEnded(const char* directory) {
  std::atexit(ExitWithLoggers);
  StartAndExit(directory);
}

// A service may allocate its state on first use, after the library is loaded.
void LookWhenTheServiceEnds(const char* directory) {
  standin::OnCall("TQLog::storage", [] { std::atexit(ExitWithLoggers); });
  StartAndExit(directory);
}

TEST(Exit, TheLoggerIsDestroyedWhenTheProcessEnds) {
  const TempDir directory;
  EXPECT_EXIT(LookWhenTheLibraryHasEnded(directory.Path().c_str()),
              testing::ExitedWithCode(kLooked), "");
}

// Symptom: the logger was destroyed after the log service's own state.
TEST(Exit, TheLoggerIsDestroyedBeforeItsServiceEnds) {
  const TempDir directory;
  EXPECT_EXIT(LookWhenTheServiceEnds(directory.Path().c_str()), testing::ExitedWithCode(kLooked),
              "");
}

} // namespace
