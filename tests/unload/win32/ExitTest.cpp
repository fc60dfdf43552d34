// A process that ends with the library loaded. When the libraries are notified, its other threads
// have already been stopped, wherever they were.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Compiler.h"
#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

// In a library that the program is linked to and that is therefore notified after those that it
// loads: makes the process end with 10 plus the number of live loggers.
extern "C" TQ_IMPORT void LookAtTheEnd();

namespace {

void StartAndExit(const char* directory) {
  const StartAndStop start = LoadLogService() ? LoadModule() : nullptr;
  if (start == nullptr || start(directory) != 1 || standin::LoggersAlive() != 1)
    std::_Exit(1);
  LookAtTheEnd();
  std::exit(0);
}

// Symptom: at the end of the process the log service was called, whose lock a stopped thread may
// hold for ever.
TEST(Exit, TheLogServiceIsNotCalledWhenTheProcessEnds) {
  const TempDir directory;
  EXPECT_EXIT(StartAndExit(directory.Path().c_str()), testing::ExitedWithCode(11), "");
}

} // namespace
