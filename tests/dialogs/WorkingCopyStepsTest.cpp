// What the editor of lists did to its copies, back and forth: lists, names, symbols, the default
// list, and what was selected.
#include "dialogs/WorkingCopy.h"

#include <functional>
#include <memory>
#include <random>
#include <string>

#include "tests/dialogs/EditCommitsTest.h"

namespace {

constexpr auto kStays = tq::WorkingCopy::DefaultRule::StaysInPlace;

std::unique_ptr<CSymbolList> ListOf(const char* id, const char* name, const char* symbols) {
  auto list = std::make_unique<CSymbolList>();
  list->SetID(id);
  list->SetName(name);
  list->Update1(symbols);
  return list;
}

// "id/name/symbols", with "*" in front of the default one.
std::string TextOf(const tq::WorkingCopy& copy) {
  std::string text;
  for (int i = 0; i < copy.Count(); ++i)
    text += std::string(i > 0 ? "|" : "") + (i == copy.DefaultIndex() ? "*" : "") +
            copy.At(i).GetID().GetString() + "/" + copy.At(i).GetName().GetString() + "/" +
            copy.At(i).GetIDs().GetString();
  return text + (copy.DefaultIndex() < 0 ? "|no default" : "");
}

class WorkingCopySteps : public EditCommits {
protected:
  WorkingCopySteps() { Start(); }

  using Edit = std::function<void(tq::WorkingCopy&)>;
  // The manager's three lists after the edit; then the edit is taken back and done again.
  void ExpectStep(const Edit& edit, const std::string& then, int selectedBefore,
                  int selectedAfter) {
    tq::WorkingCopy copy(manager, kUserLists);
    copy.KeepSteps();
    edit(copy);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(TextOf(copy), then);
      EXPECT_EQ(copy.Redo(), std::nullopt);
      EXPECT_EQ(copy.Undo(), selectedBefore);
      EXPECT_EQ(TextOf(copy), opened);
      EXPECT_EQ(copy.Undo(), std::nullopt);
      EXPECT_EQ(copy.Redo(), selectedAfter);
    }
  }
  const std::string opened = "*A/one/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW";
};

TEST_F(WorkingCopySteps, EachEditIsTakenBack) {
  ExpectStep([](auto& copy) { copy.Add(ListOf("N", "new", "6488.TE"), 1); },
             opened + "|N/new/6488.TE", 1, 3);
  ExpectStep([](auto& copy) { copy.Remove(0, kStays); }, "*B/two/2317.TW|C/three/1101.TW,2454.TW",
             0, 0);
  ExpectStep([](auto& copy) { copy.Remove(2, kStays); }, "*A/one/2330.TW|B/two/2317.TW", 2, 1);
  ExpectStep([](auto& copy) { copy.MoveDown(0); },
             "B/two/2317.TW|*A/one/2330.TW|C/three/1101.TW,2454.TW", 0, 1);
  ExpectStep([](auto& copy) { copy.MoveUp(2); },
             "*A/one/2330.TW|C/three/1101.TW,2454.TW|B/two/2317.TW", 2, 1);
  ExpectStep([](auto& copy) { copy.MakeDefault(2); },
             "A/one/2330.TW|B/two/2317.TW|*C/three/1101.TW,2454.TW", 2, 2);
  ExpectStep([](auto& copy) { copy.Rename(1, "zwei"); },
             "*A/one/2330.TW|B/zwei/2317.TW|C/three/1101.TW,2454.TW", 1, 1);
  ExpectStep([](auto& copy) { copy.Replace(2, ListOf("C", "drei", "2454.TW,6488.TE,1101.TW")); },
             "*A/one/2330.TW|B/two/2317.TW|C/drei/2454.TW,6488.TE,1101.TW", 2, 2);
}

TEST_F(WorkingCopySteps, AnEditThatChangesNothingIsNone) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.MoveUp(0);
  copy.MoveDown(2);
  copy.MakeDefault(0);
  copy.Rename(1, "two");
  copy.Replace(1, ListOf("B", "two", "2317.TW"));
  EXPECT_EQ(copy.Undo(), std::nullopt);
  EXPECT_EQ(TextOf(copy), opened);
}

TEST_F(WorkingCopySteps, WithoutBeingAskedForThereAreNone) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.Remove(0, kStays);
  EXPECT_EQ(copy.Undo(), std::nullopt);
  EXPECT_EQ(copy.Count(), 2);
}

TEST_F(WorkingCopySteps, AListThatComesBackIsTheSameObject) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  const CSymbolList* const list = &copy.At(1);
  copy.Remove(1, kStays);
  copy.Undo();
  EXPECT_EQ(&copy.At(1), list);
}

TEST_F(WorkingCopySteps, TheOnlyListThatGoesTakesTheDefaultWithIt) {
  tq::WorkingCopy copy;
  copy.KeepSteps();
  copy.Add(ListOf("N", "new", ""));
  copy.Remove(0, kStays);
  EXPECT_EQ(copy.Undo(), 0);
  EXPECT_EQ(TextOf(copy), "*N/new/");
  EXPECT_EQ(copy.Undo(), -1);
  EXPECT_EQ(TextOf(copy), "|no default");
}

TEST_F(WorkingCopySteps, AnotherEditTakesThePlaceOfWhatWasTakenBack) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.Rename(0, "eins");
  copy.Undo();
  copy.Rename(1, "zwei");
  EXPECT_EQ(copy.Redo(), std::nullopt);
  EXPECT_EQ(copy.Undo(), 1);
  EXPECT_EQ(TextOf(copy), opened);
}

// Whatever makes the lists others than those of the steps: nothing is done, and nothing is lost.
TEST_F(WorkingCopySteps, AStepThatDoesNotFitDoesNothing) {
  const Edit edits[] = {[](auto& copy) { copy.Add(ListOf("N", "new", ""), 1); },
                        [](auto& copy) { copy.MoveUp(2); },
                        [](auto& copy) { copy.Rename(2, "drei"); },
                        [](auto& copy) { copy.Replace(2, ListOf("C", "three", "2454.TW")); }};
  for (const Edit& edit : edits) {
    tq::WorkingCopy copy(manager, kUserLists);
    copy.KeepSteps();
    edit(copy);
    copy.All().resize(1);
    EXPECT_EQ(copy.Undo(), std::nullopt);
    EXPECT_EQ(TextOf(copy), "*A/one/2330.TW");
    EXPECT_EQ(copy.Redo(), std::nullopt);
  }
}

TEST_F(WorkingCopySteps, SymbolsThatOthersPutInAreNotTakenBack) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.Replace(1, ListOf("B", "zwei", "2330.TW"));
  copy.At(1).Update1("2330.TW,6488.TE");
  EXPECT_EQ(copy.Undo(), std::nullopt);
  EXPECT_STREQ(copy.At(1).GetIDs(), "2330.TW,6488.TE");
  EXPECT_STREQ(copy.At(1).GetName(), "zwei");
}

TEST_F(WorkingCopySteps, WhatOthersDidIsTakenInBehindTheSteps) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.Remove(1, kStays);
  manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0);
  copy.TakeInChanges(manager);
  const std::string taken = TextOf(copy);
  EXPECT_EQ(copy.Undo(), std::nullopt);
  EXPECT_EQ(TextOf(copy), taken);
  copy.Rename(0, "mine");
  EXPECT_EQ(copy.Undo(), 0);
  EXPECT_EQ(TextOf(copy), taken);
}

TEST_F(WorkingCopySteps, AfterAllIsTakenBackNothingIsCommitted) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.Remove(0, kStays);
  copy.Add(ListOf("N", "new", "6488.TE"), 0);
  copy.Replace(0, ListOf("B", "zwei", "6488.TE,2317.TW"));
  copy.MakeDefault(2);
  while (copy.Undo()) {
  }
  tq::CommitLists(manager, copy, 3);
  EXPECT_EQ(Happened(), "saves 0");
}

// What others did meanwhile stays as it would have without the edits.
TEST_F(WorkingCopySteps, AfterAllIsTakenBackTheCopyCountsAsUntouched) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  copy.MoveUp(1);
  copy.Undo();
  manager.AddSymbolList("N", 0, "new", "1436.TW", 0, 0);
  manager.DeleteSymbolList("B");
  EXPECT_FALSE(copy.TakeInChanges(manager));
  EXPECT_EQ(TextOf(copy), "*N/new/1436.TW|A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(WorkingCopySteps, RandomEditsLeadBackToTheStatesThatWere) {
  tq::WorkingCopy copy(manager, kUserLists);
  copy.KeepSteps();
  std::mt19937 random(20261122);
  const auto draw = [&random](int below) {
    return static_cast<int>(random() % static_cast<unsigned>(below));
  };
  const char* const names[] = {"one", "two", "drei"};
  const char* const symbols[] = {"", "2330.TW", "2317.TW,2330.TW", "A:,1101.TW,2330.TW"};
  std::vector<std::string> states = {TextOf(copy)};
  for (int i = 0; i < 3000; ++i) {
    const int count = copy.Count();
    if (count == 0 || (count < 7 && draw(6) == 0)) {
      copy.Add(ListOf(std::to_string(i).c_str(), names[draw(3)], symbols[draw(4)]), -1);
    } else if (const int index = draw(count); draw(6) == 0) {
      copy.Remove(index, kStays);
    } else if (draw(2) == 0) {
      draw(2) == 0 ? copy.MoveUp(index) : copy.MoveDown(index);
    } else if (draw(2) == 0) {
      draw(2) == 0 ? copy.MakeDefault(index) : copy.Rename(index, names[draw(3)]);
    } else {
      copy.Replace(index, ListOf(copy.At(index).GetID(), names[draw(3)], symbols[draw(4)]));
    }
    if (TextOf(copy) != states.back())
      states.push_back(TextOf(copy));
  }
  const std::size_t last = states.size() - 1;
  for (std::size_t at = last; at-- > 0;) {
    ASSERT_NE(copy.Undo(), std::nullopt);
    ASSERT_EQ(TextOf(copy), states[at]);
  }
  EXPECT_EQ(copy.Undo(), std::nullopt);
  for (std::size_t at = 1; at <= last; ++at) {
    ASSERT_NE(copy.Redo(), std::nullopt);
    ASSERT_EQ(TextOf(copy), states[at]);
  }
  EXPECT_EQ(copy.Redo(), std::nullopt);
}

} // namespace
