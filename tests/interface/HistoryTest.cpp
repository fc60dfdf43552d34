// The history of the list file through the interface. What depends on the day is tested without a
// manager.
#include <string>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class HistoryTest : public EditTest {
protected:
  int Days() {
    CStringArray days;
    days.Add("left over");
    const int count = manager.GetHistory(days);
    EXPECT_EQ(count, days.GetSize());
    return count;
  }
};

TEST_F(HistoryTest, TheFirstSaveKeepsAFileThatCanBeRestored) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(Days(), 0);
  manager.SetHistory(5);
  ASSERT_EQ(manager.AddSymbolList("b", 0, "B", "2317.TW", 1, 0), 1);
  CStringArray days;
  ASSERT_EQ(manager.GetHistory(days), 1);
  const std::string file = std::string("SymbolList_") + days[0].GetString() + ".xml";
  EXPECT_TRUE(directory.Exists(file)) << file;
  EXPECT_EQ(manager.RestoreHistory(days[0]), 1);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
}

TEST_F(HistoryTest, ItOutlivesAStartAndAnotherDirectory) {
  manager.SetHistory(5);
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(Days(), 1);
}

TEST_F(HistoryTest, AWrongDayIsAProblemAndNothingElse) {
  StartWith({"a/A/2330.TW"});
  CString text;
  EXPECT_EQ(manager.RestoreHistory("tomorrow"), 0);
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemRange);
  EXPECT_EQ(manager.RestoreHistory("19990101"), 0);
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemFileMissing);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

TEST_F(HistoryTest, WithoutADirectoryThereIsNone) {
  EXPECT_EQ(Days(), 0);
  EXPECT_EQ(manager.RestoreHistory("20260131"), 0);
}

} // namespace
