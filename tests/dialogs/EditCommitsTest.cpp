// What is stored, saved, logged and told when the list editor's working copy is committed.
#include "tests/dialogs/EditCommitsTest.h"

namespace {

TEST_F(EditCommits, AnUntouchedCopyDoesNothing) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, OtherSymbolsAreAChangeWithoutAReason) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2454.TW");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "; log DoSymbolListUI" + kChanged);
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2454.TW|C/three/1101.TW,2454.TW");
  EXPECT_NE(ReadWorking().find("Value='2454.TW'"), std::string::npos);
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(EditCommits, AnotherNameIsANameChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
}

TEST_F(EditCommits, AnotherNumberOfListsIsACountChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Remove(copy, 2);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "ListCntChange; log DoSymbolListUI" + kChanged +
                            "(nNewSymbolListCnt != nOldSymbolListCnt)");
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW");
}

TEST_F(EditCommits, TheNumberWinsOverAName) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Remove(copy, 2);
  Rename(copy, 0, "ONE");
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "ListCntChange; log DoSymbolListUI" + kChanged +
                            "(nNewSymbolListCnt != nOldSymbolListCnt)");
}

TEST_F(EditCommits, ListsThatChangedPlacesAreANameChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  std::swap(copy.All()[0], copy.All()[1]);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
  EXPECT_EQ(Shape(), "B/two/2317.TW|A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AnotherDefaultListIsAChangeWithoutAReason) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.SetDefaultIndex(2);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), kOne + "; log DoSymbolListUI" + kChanged);
  EXPECT_EQ(DefaultIndex(), 2);
  EXPECT_NE(ReadWorking().find("DefaultIdx='2'"), std::string::npos);
}

TEST_F(EditCommits, NoListsLeftMeansNoDefaultList) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.Clear();
  copy.SetDefaultIndex(-1);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(manager.GetSymbolListCount(kUserLists), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(EditCommits, ADefaultIndexBehindTheListsIsBroughtBack) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.SetDefaultIndex(7);
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(DefaultIndex(), 2);
}

TEST_F(EditCommits, ASaveThatFailsIsShownAndToldAllTheSame) {
  Start();
  const std::string file = ReadWorking();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  files.fail = true;
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(),
            kOne + "ListNameChange; log DoSymbolListUI" + kChanged + "(bListNameChange)");
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  EXPECT_EQ(ReadWorking(), file);
  EXPECT_EQ(NameAt(0), "ONE");
}

TEST_F(EditCommits, TheTerminalIsToldAfterTheSave) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 0, "ONE");
  const std::size_t before = standin::Notifications().size();
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(files.notifiedAtSave, before);
}

} // namespace
