// The logger goes with the library: it was made by code that is no longer there.
#include <gtest/gtest.h>

#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

namespace {

TEST(Unload, TheLoggerStaysUntilTheLibraryIsUnloaded) {
  const TempDir directory;
  const StartAndStop start = LoadModule();
  ASSERT_NE(start, nullptr);
  EXPECT_EQ(standin::LoggersAlive(), 0);
  EXPECT_EQ(start(directory.Path().c_str()), 1);
  EXPECT_EQ(standin::LoggersAlive(), 1);
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(standin::LoggersAlive(), 0);
}

TEST(Unload, ALibraryThatLeftNoLoggerCanBeUnloaded) {
  ASSERT_NE(LoadModule(), nullptr);
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(standin::LoggersAlive(), 0);
}

} // namespace
