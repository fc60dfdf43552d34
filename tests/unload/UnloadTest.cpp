// The logger is destroyed with the library, whose code created it.
#include <gtest/gtest.h>

#include "terminal/StandIn.h"
#include "tests/support/TempDir.h"
#include "tests/unload/Module.h"

namespace {

class Unload : public testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(LoadLogService()); }
  void Start() {
    const StartAndStop start = LoadModule();
    ASSERT_NE(start, nullptr);
    ASSERT_EQ(standin::LoggersAlive(), 0);
    ASSERT_EQ(start(directory_.Path().c_str()), 1);
    ASSERT_EQ(standin::LoggersAlive(), 1);
  }

private:
  const TempDir directory_;
};

TEST_F(Unload, TheLoggerStaysUntilTheLibraryIsUnloaded) {
  Start();
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(standin::LoggersAlive(), 0);
  EXPECT_TRUE(LogServiceIsThere());
  EXPECT_TRUE(UnloadLogService());
}

TEST_F(Unload, ALogServiceThatIsLetGoFirstStaysForTheLogger) {
  Start();
  ASSERT_TRUE(UnloadLogService());
  EXPECT_TRUE(LogServiceIsThere());
  EXPECT_EQ(standin::LoggersAlive(), 1);
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(standin::LoggersAlive(), 0);
}

TEST_F(Unload, ALibraryThatComesAgainHasALoggerAgain) {
  for (int i = 0; i < 3; ++i) {
    Start();
    ASSERT_TRUE(UnloadModule());
    EXPECT_EQ(standin::LoggersAlive(), 0);
  }
  EXPECT_TRUE(UnloadLogService());
}

TEST_F(Unload, ALibraryThatLeftNoLoggerCanBeUnloaded) {
  ASSERT_NE(LoadModule(), nullptr);
  ASSERT_TRUE(UnloadModule());
  EXPECT_EQ(standin::LoggersAlive(), 0);
  EXPECT_TRUE(UnloadLogService());
}

} // namespace
