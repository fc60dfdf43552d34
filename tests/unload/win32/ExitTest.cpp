// A process that ends with the library loaded. Its other threads have been stopped wherever they
// were when the libraries are told.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Compiler.h"
#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

// Of a library that comes with the program, so that it ends behind those that the program loads:
// has the process end with 10 and the number of loggers alive by then.
extern "C" TQ_IMPORT void LookAtTheEnd();

namespace {

void StartAndExit(const char* directory) {
  const StartAndStop start = LoadLogService() ? LoadModule() : nullptr;
  if (start == nullptr || start(directory) != 1 || standin::LoggersAlive() != 1)
    std::_Exit(1);
  LookAtTheEnd();
  std::exit(0);
}

// The end of a process called the log service, whose lock a stopped thread may hold for ever.
TEST(Exit, TheLogServiceIsNotCalledWhenTheProcessEnds) {
  const TempDir directory;
  EXPECT_EXIT(StartAndExit(directory.Path().c_str()), testing::ExitedWithCode(11), "");
}

} // namespace
