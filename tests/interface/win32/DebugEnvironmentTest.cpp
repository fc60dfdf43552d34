// The environment variable that sets the debug mode when the first manager of a process is made.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/interface/EditTest.h"

namespace {

class DebugEnvironmentDeathTest : public EditTest {};

// The process that dies is a new one, which has the variable from its start.
TEST_F(DebugEnvironmentDeathTest, TheFirstManagerReadsIt) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  ASSERT_EQ(_putenv("TQSYMBOL_DEBUG=stop"), 0);
  EXPECT_DEATH(manager.CheckIDandName("a", "AB\xA4", 1), "CheckIDandName: name is not text");
  ASSERT_EQ(_putenv("TQSYMBOL_DEBUG="), 0);
}

} // namespace
