// The debug mode that stops the process.
#include "tests/interface/EditTest.h"

namespace {

class DebugStopDeathTest : public EditTest {
protected:
  DebugStopDeathTest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

void NameHalfACharacter(CTQSymbolListMgr& manager) {
  manager.CheckIDandName("a", "AB\xA4", 1);
}

TEST_F(DebugStopDeathTest, TheFirstMistakeStopsTheProcessAndIsOnItsErrorStream) {
  ASSERT_EQ(StartWithTables(), 1);
  EXPECT_DEATH(
      {
        CTQSymbolListMgr::SetDebugMode(TQDebugStop);
        NameHalfACharacter(manager);
      },
      "tqSymbol: CheckIDandName: name is not text of code page 9..: byte 2 .A4. begins");
}

} // namespace
