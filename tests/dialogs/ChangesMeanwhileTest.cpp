// A working copy takes in what others did to the manager's lists since it was made.
#include "dialogs/WorkingCopy.h"

#include "tests/dialogs/EditCommitsTest.h"

namespace {

class ChangesMeanwhile : public EditCommits {
protected:
  ChangesMeanwhile() { Start(); }

  // "id/name/symbols", with "*" in front of the default one.
  static std::string Text(const tq::WorkingCopy& copy) {
    std::string text;
    for (int i = 0; i < copy.Count(); ++i)
      text += std::string(i > 0 ? "|" : "") + (i == copy.DefaultIndex() ? "*" : "") +
              copy.At(i).GetID().GetString() + "/" + copy.At(i).GetName().GetString() + "/" +
              copy.At(i).GetIDs().GetString();
    return text;
  }
  // The user renames the list at `index`; others do something; the copy takes it in.
  template <typename Others> std::string After(int index, Others others) {
    tq::WorkingCopy copy(manager, kUserLists);
    Rename(copy, index, "mine");
    others();
    copy.TakeInChanges(manager);
    copy.ReportKept();
    return Text(copy);
  }
};

TEST_F(ChangesMeanwhile, WithoutAnyTheCopyStaysAsItIs) {
  EXPECT_EQ(After(1, [] {}), "*A/one/2330.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW");
}

// Symptom: a list that the terminal added while the editor was open was gone when it closed.
TEST_F(ChangesMeanwhile, AListThatOthersAddedComesBehindTheUsers) {
  EXPECT_EQ(After(1, [&] { manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0); }),
            "*A/one/2330.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW|N/new/1436.TW");
}

TEST_F(ChangesMeanwhile, TheLogSaysHowManyListsWereKept) {
  const std::size_t lines = standin::LogLines().size();
  const auto said = [&] {
    std::string text;
    for (std::size_t i = lines; i < standin::LogLines().size(); ++i)
      text += standin::LogLines()[i].text.find("kept:") != std::string::npos
                  ? standin::LogLines()[i].text
                  : "";
    return text;
  };
  After(1, [&] { manager.InsertSymbolList("A", 9, "1436.TW", 0, 0); });
  EXPECT_EQ(said(), "");
  After(1, [&] { manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0); });
  EXPECT_EQ(said(), "Lists added while others were edited, kept: 1");
}

TEST_F(ChangesMeanwhile, ADefaultThatOthersSetToAListThatTheyAddedIsTaken) {
  EXPECT_EQ(After(1,
                  [&] {
                    manager.AddSymbolList("N", 0, "new", "1436.TW", 1, 0);
                    manager.SetDefaultIndex(3);
                  }),
            "A/one/2330.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW|*N/new/1436.TW");
}

TEST_F(ChangesMeanwhile, AListThatOthersChangedIsTakenWhenTheUserDidNotTouchIt) {
  EXPECT_EQ(After(1, [&] { manager.InsertSymbolList("A", 9, "1436.TW", 0, 0); }),
            "*A/one/2330.TW,1436.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, AListThatBothChangedIsAsTheUserSawIt) {
  EXPECT_EQ(After(0, [&] { manager.InsertSymbolList("A", 9, "1436.TW", 0, 0); }),
            "*A/mine/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, AListThatTheUserDeletedStaysDeleted) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.Remove(1, tq::WorkingCopy::DefaultRule::StaysInPlace);
  manager.InsertSymbolList("B", 9, "1436.TW", 0, 0);
  copy.TakeInChanges(manager);
  EXPECT_EQ(Text(copy), "*A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, AListThatOthersDeletedStays) {
  EXPECT_EQ(After(1, [&] { manager.DeleteSymbolList("C"); }),
            "*A/one/2330.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, ADefaultThatOthersSetIsTakenWhenTheUserSetNone) {
  EXPECT_EQ(After(1, [&] { manager.SetDefaultIndex(2); }),
            "A/one/2330.TW|B/mine/2317.TW|*C/three/1101.TW,2454.TW");
  tq::WorkingCopy copy(manager, kUserLists);
  copy.SetDefaultIndex(1);
  manager.SetDefaultIndex(0);
  copy.TakeInChanges(manager);
  EXPECT_EQ(copy.DefaultIndex(), 1);
}

TEST_F(ChangesMeanwhile, ACopyThatNobodyTouchedBecomesWhatTheManagerHas) {
  tq::WorkingCopy copy(manager, kUserLists);
  manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0);
  manager.DeleteSymbolList("B");
  CSymbolList first;
  first.SetID("F");
  first.SetName("first");
  manager.AddTQSymbolList(&first, 0);
  copy.TakeInChanges(manager);
  EXPECT_EQ(Text(copy), "*F/first/|N/new/1436.TW|A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, ListsThatShareAnIdentifierAreCounted) {
  CSymbolList twin;
  twin.SetID("a");
  twin.SetName("twin");
  EXPECT_EQ(After(1,
                  [&] {
                    manager.AddTQSymbolList(&twin, 1);
                    manager.AddTQSymbolList(&twin, 1);
                  }),
            "*A/one/2330.TW|B/mine/2317.TW|C/three/1101.TW,2454.TW|a/twin/|a/twin/");
}

TEST_F(ChangesMeanwhile, WhatWasCommittedIsNoChangeOfOthers) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.Remove(0, tq::WorkingCopy::DefaultRule::StaysInPlace);
  CPtrArray lists = copy.Pointers();
  manager.SetSymbolList(&lists);
  copy.Committed();
  copy.Remove(0, tq::WorkingCopy::DefaultRule::StaysInPlace);
  copy.TakeInChanges(manager);
  EXPECT_EQ(copy.Count(), 1);
}

TEST_F(ChangesMeanwhile, ACopyOfNoManagerTakesInNothing) {
  tq::WorkingCopy copy;
  copy.TakeInChanges(manager);
  EXPECT_EQ(copy.Count(), 0);
}

TEST_F(ChangesMeanwhile, TheCommitOfAnUntouchedCopyUndoesNothing) {
  tq::WorkingCopy copy(manager, kUserLists);
  const int before = copy.Count();
  manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0);
  Mark();
  tq::CommitLists(manager, copy, before);
  EXPECT_EQ(Happened(), "saves 0");
  EXPECT_EQ(Shape(), "N/new/1436.TW|A/one/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ChangesMeanwhile, ThousandsOfListsTakeNoTime) {
  for (int i = 0; i < 5000; ++i) {
    CSymbolList list;
    list.SetID(("L" + std::to_string(i)).c_str());
    list.SetName("n");
    manager.AddTQSymbolList(&list, 1);
  }
  tq::WorkingCopy copy(manager, kUserLists);
  Rename(copy, 5, "mine");
  manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0);
  copy.TakeInChanges(manager);
  EXPECT_EQ(copy.Count(), 5004);
}

} // namespace
