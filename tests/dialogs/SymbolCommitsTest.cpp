// What is stored, saved, logged and told after dialogs that add symbols, edit one list or select
// lists.
#include "tests/dialogs/EditCommitsTest.h"

namespace {

TEST_F(EditCommits, AddingNothingIsToldWithCode40Alone) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(Happened(), "saves 0; told 40:");
}

TEST_F(EditCommits, AddedSymbolsAreToldWithCode4First) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(0).Update1("2330.TW,2317.TW");
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(Happened(), std::string("saves 1; told 4:; told 40:; log DoSymbolAddUI") + kChanged);
  EXPECT_EQ(Shape(), "A/one/2330.TW,2317.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AListThatIsNewWithTheSymbolsIsStored) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  auto list = std::make_unique<CSymbolList>();
  list->SetID("N");
  list->SetName("new");
  list->Update1("2881.TW");
  copy.All().push_back(std::move(list));
  tq::CommitAddedSymbols(manager, copy);
  EXPECT_EQ(manager.GetSymbolListCount(kUserLists), 4);
  EXPECT_EQ(IdAt(3), "N");
}

TEST_F(EditCommits, OneSymbolAddedToListsIsToldOnlyWhenItChangedThem) {
  Start();
  tq::WorkingCopy same(manager, kUserLists);
  tq::CommitSymbolAddedToLists(manager, same);
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(same.Count(), 0);
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2317.TW,2881.TW");
  tq::CommitSymbolAddedToLists(manager, copy);
  EXPECT_EQ(Happened(), kOne + "; log DoGroupSymbolAdd" + kChanged);
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(EditCommits, AnEditedListTakesItsPlaceAndIsSavedButNotTold) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(1).Update1("2317.TW,2881.TW");
  Rename(copy, 1, "zwei");
  EXPECT_TRUE(tq::CommitEditedList(manager, copy.At(1)));
  EXPECT_EQ(Happened(), "saves 1");
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/zwei/2317.TW,2881.TW|C/three/1101.TW,2454.TW");
}

TEST_F(EditCommits, AListThatIsTheSameIsNotStored) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  EXPECT_FALSE(tq::CommitEditedList(manager, copy.At(2)));
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, TheSameSymbolsInAnotherOrderAreAChange) {
  Start();
  tq::WorkingCopy copy(manager, kUserLists);
  copy.At(2).Update1("2454.TW,1101.TW");
  EXPECT_TRUE(tq::CommitEditedList(manager, copy.At(2)));
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW|C/three/2454.TW,1101.TW");
}

TEST_F(EditCommits, AListThatTheManagerDoesNotHaveIsNotStored) {
  Start();
  CSymbolList list;
  list.SetID("NOBODY");
  list.SetName("new");
  list.Update1("2330.TW");
  EXPECT_FALSE(tq::CommitEditedList(manager, list));
  EXPECT_FALSE(tq::CommitEditedCloudList(manager, list));
  EXPECT_EQ(Happened(), "saves 0");
}

TEST_F(EditCommits, WhatTheSelectionDialogChangedIsLoggedAndTold) {
  Start();
  tq::ReportChangedBySelection();
  EXPECT_EQ(Happened(), std::string("saves 0; told 40:; log DoSelectUI") + kChanged);
}

} // namespace
