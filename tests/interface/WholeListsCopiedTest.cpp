// Whole lists that the terminal hands in to be copied: a single one, or all of them.
#include "tests/interface/WholeListsTest.h"

namespace {

TEST_F(WholeListsTest, AListIsPutInAsItIsWithoutSaveOrNameCheck) {
  StartWith({"a/A/2330.TW"});
  const std::string working = ReadWorking();
  CSymbolList source;
  source.SetID("a");
  source.SetName("A");
  source.Update1("6488.TW,2317.TW");
  EXPECT_EQ(manager.AddTQSymbolList(&source, 1), 1);
  EXPECT_EQ(manager.AddTQSymbolList(&source, 0), 1);
  EXPECT_EQ(Shape(), "a/A/6488.TE,2317.TW|a/A/2330.TW|a/A/6488.TE,2317.TW");
  EXPECT_STREQ(source.GetIDs(), "6488.TE,2317.TW");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(WholeListsTest, SettingListsReplacesAllAndRenamesMovedSymbols) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const std::string working = ReadWorking();
  CPtrArray copies;
  manager.GetSymbolList(copies, 1);
  static_cast<CSymbolList*>(copies[0])->Update1("6488.TW");
  static_cast<CSymbolList*>(copies[1])->SetName("A");
  EXPECT_EQ(manager.SetSymbolList(&copies), 1);
  EXPECT_EQ(Given(copies), "6488.TE");
  DeleteCopies(copies);
  EXPECT_EQ(Shape(), "a/A/6488.TE|b/A/");
  EXPECT_EQ(ReadWorking(), working);
  ExpectNotNotified();
}

TEST_F(WholeListsTest, SettingListsBringsTheIndexIntoRange) {
  StartWith({"a/A/2330.TW", "b/B/"});
  const struct {
    int before;
    int after;
  } kCases[] = {{-1, 0}, {-7, 0}, {0, 0}, {1, 1}, {2, 1}, {30, 1}};
  for (const auto& each : kCases) {
    CPtrArray copies;
    manager.GetSymbolList(copies, 1);
    manager.SetDefaultIndex(each.before);
    manager.SetSymbolList(&copies);
    DeleteCopies(copies);
    EXPECT_EQ(DefaultIndex(), each.after) << each.before;
  }
}

TEST_F(WholeListsTest, SettingNoListsDestroysAllAndAMissingArrayNone) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.SetSymbolList(nullptr), 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
  CPtrArray none;
  EXPECT_EQ(manager.SetSymbolList(&none), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

} // namespace
