// The contents of a list, back to what they were and forth again.
#include <functional>
#include <random>

#include "dialogs/ListContents.h"
#include "platform/Text.h"
#include "platform/services/VLProxy.h"
#include "symbollist/SymbolList.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

using tq::ListContents;

class ListContentsSteps : public StandInTest {
protected:
  static ListContents Of(const char* ids) {
    CSymbolList list;
    list.Update1(ids);
    return ListContents(list);
  }
  static std::vector<SymbolInfo> Records(const char* ids) {
    SymbolInfo* found = nullptr;
    int count = 0;
    EXPECT_NE(VLGetSymbolInfos(ids, &found, &count), 0);
    std::vector<SymbolInfo> records(found, found + count);
    VLFree(found);
    return records;
  }
  static std::string Ids(const ListContents& contents) {
    return std::string(tq::ViewOf(contents.Ids()));
  }
  static std::vector<std::string> Rows(const ListContents& contents) {
    std::vector<std::string> rows;
    for (int row = 0; row < contents.RowCount(); ++row)
      rows.emplace_back(contents.RowText(row).GetString());
    return rows;
  }

  using Edit = std::function<void(ListContents&)>;
  // Of this edit one step comes, which is taken back, and done again.
  static void ExpectStep(const char* ids, const Edit& edit, const std::string& then) {
    ListContents contents = Of(ids);
    edit(contents);
    ASSERT_EQ(contents.Steps(), 1u);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(Ids(contents), then);
      EXPECT_FALSE(contents.Redo());
      EXPECT_TRUE(contents.Undo());
      EXPECT_EQ(Ids(contents), ids);
      EXPECT_FALSE(contents.Undo());
      EXPECT_TRUE(contents.Redo());
    }
  }
};

// Unknown ids, blanks and empty pieces come back as they were written.
TEST_F(ListContentsSteps, EachEditIsTakenBackToTheByte) {
  const char* const ids = " 2454.tw ,,gone.TW,A:,1101.TW,x y,2317.TW,";
  ExpectStep(
      ids, [](auto& all) { all.Insert(1, Records("2330.TW,6488.TE")); },
      "2454.TW,gone.TW,2330.TW,6488.TE,A:,1101.TW,x y,2317.TW");
  ExpectStep(
      ids, [](auto& all) { all.Insert(4, Records("2330.TW")); },
      "2454.TW,gone.TW,A:,1101.TW,x y,2317.TW,2330.TW");
  ExpectStep(
      ids, [](auto& all) { all.InsertHeading(0, "B:"); },
      "B:,2454.TW,gone.TW,A:,1101.TW,x y,2317.TW");
  ExpectStep(
      ids, [](auto& all) { all.SetHeading(1, "B:"); }, "2454.TW,gone.TW,B:,1101.TW,x y,2317.TW");
  ExpectStep(
      ids,
      [](auto& all) {
        all.Remove(std::vector{0, 1, 3});
      },
      "gone.TW,1101.TW,x y");
  ExpectStep(
      ids,
      [](auto& all) {
        all.Remove(std::vector{0, 1, 2, 3});
      },
      "gone.TW,x y");
  ExpectStep(
      ids,
      [](auto& all) {
        all.Move(std::vector{1, 2}, true);
      },
      "A:,gone.TW,1101.TW,2454.TW,x y,2317.TW");
  ExpectStep(
      ids,
      [](auto& all) {
        all.Move(std::vector{0, 2}, false);
      },
      "A:,gone.TW,2454.TW,2317.TW,x y,1101.TW");
  ExpectStep(
      "2454.TW,gone.TW,1101.tw,B:,6488.TE,2330.TW,A:", [](auto& all) { all.Sort(); },
      "1101.TW,gone.TW,2454.TW,B:,2330.TW,6488.TE,A:");
}

TEST_F(ListContentsSteps, AnEditThatChangesNothingIsNone) {
  ListContents contents = Of("1101.tw,A:,2330.TW");
  contents.Insert(0, Records("2330.TW"));
  contents.Insert(0, {});
  contents.SetHeading(1, "A:");
  contents.Remove({});
  contents.Move(std::vector{0}, true);
  contents.Move(std::vector{2}, false);
  contents.Sort();
  EXPECT_EQ(contents.Steps(), 0u);
  EXPECT_EQ(Ids(contents), "1101.tw,A:,2330.TW");
}

TEST_F(ListContentsSteps, AnotherEditTakesThePlaceOfWhatWasTakenBack) {
  ListContents contents = Of("A:,B:,C:");
  contents.Remove(std::vector{0});
  contents.Remove(std::vector{0});
  contents.Undo();
  contents.Move(std::vector{1}, true);
  EXPECT_FALSE(contents.Redo());
  EXPECT_EQ(Ids(contents), "C:,B:");
  contents.Undo();
  contents.Undo();
  EXPECT_EQ(Ids(contents), "A:,B:,C:");
}

TEST_F(ListContentsSteps, WhatIsTakenBackCanBeAddedOnceMore) {
  ListContents contents = Of("A:");
  contents.Insert(0, Records("2330.TW"));
  contents.Undo();
  EXPECT_FALSE(contents.Holds("2330.tw"));
  contents.Redo();
  EXPECT_TRUE(contents.Holds("2330.tw"));
  contents.Remove(std::vector{0});
  contents.Undo();
  EXPECT_EQ(contents.Insert(0, Records("2330.TW")), 0);
}

TEST_F(ListContentsSteps, StepsThatAreForgottenStay) {
  ListContents contents = Of("2330.tw");
  contents.InsertHeading(0, "A:");
  contents.ForgetSteps();
  EXPECT_FALSE(contents.Undo());
  EXPECT_EQ(Ids(contents), "A:,2330.TW");
  contents.Remove(std::vector{0});
  contents.Undo();
  EXPECT_EQ(Ids(contents), "A:,2330.TW");
}

TEST_F(ListContentsSteps, WhatWasSelectedGoesAlong) {
  ListContents contents = Of("A:,B:,C:");
  contents.Remove(std::vector{0, 1});
  contents.KeepSelection({{{0, 2}}, 1}, {{{0, 1}}, 0});
  const auto back = contents.Undo();
  EXPECT_EQ(back->selected.rows, (tq::PlaceRuns{{0, 2}}));
  EXPECT_EQ(back->selected.caret, 1);
  const auto forth = contents.Redo();
  EXPECT_EQ(forth->selected.rows, (tq::PlaceRuns{{0, 1}}));
  EXPECT_EQ(forth->selected.caret, 0);
}

// Random edits and steps: each state is the one that was recorded, and what is said of the rows
// that changed makes of the rows of before those of now.
class ListContentsStepsWalk : public ListContentsSteps {
protected:
  struct State {
    std::string ids;
    std::vector<std::string> rows;
    bool operator==(const State&) const = default;
  };
  State Now() const { return {Ids(contents), Rows(contents)}; }

  void EditAtRandom() {
    const int count = contents.RowCount();
    const int row = static_cast<int>(random() % static_cast<unsigned>(count + 1));
    const std::vector<int> rows = SomeRows();
    switch (random() % 6) {
    case 0:
      contents.Insert(row, symbols);
      break;
    case 1:
      if (count < 12)
        contents.InsertHeading(row, random() % 2 == 0 ? "H:" : "G:");
      break;
    case 2:
      contents.Remove(rows);
      break;
    case 3:
      contents.Sort();
      break;
    case 4:
      if (row < count && contents.IsHeading(row))
        contents.SetHeading(row, random() % 2 == 0 ? "H:" : "G:");
      break;
    default:
      contents.Move(rows, random() % 2 == 0);
    }
  }
  std::vector<int> SomeRows() {
    std::vector<int> rows;
    for (int row = 0; row < contents.RowCount(); ++row) {
      if (random() % 3 == 0)
        rows.push_back(row);
    }
    return rows;
  }
  void Go(bool back) {
    std::vector<std::string> rows = Rows(contents);
    const auto turned = back ? contents.Undo() : contents.Redo();
    ASSERT_TRUE(turned);
    const std::vector<std::string> now = Rows(contents);
    const auto at = rows.begin() + turned->first;
    rows.insert(rows.erase(at, at + turned->before), now.begin() + turned->first,
                now.begin() + turned->first + turned->now);
    ASSERT_EQ(rows, now);
    place += back ? -1 : 1;
    ASSERT_EQ(Now(), states[static_cast<std::size_t>(place)]);
  }

  ListContents contents = Of("gone.TW,1101.TW,none.TE,A:,2317.tw,x y");
  std::vector<SymbolInfo> symbols = Records("2330.TW,1101.TW,2317.TW,6488.TE");
  std::vector<State> states = {Now()};
  int place = 0;
  std::mt19937 random{20261122};
};

TEST_F(ListContentsStepsWalk, EachStepLeadsToTheStateThatWas) {
  for (int i = 0; i < 20000; ++i) {
    const unsigned what = static_cast<unsigned>(random() % 4);
    if (what == 0 && place > 0) {
      ASSERT_NO_FATAL_FAILURE(Go(true));
    } else if (what == 1 && place + 1 < static_cast<int>(states.size())) {
      ASSERT_NO_FATAL_FAILURE(Go(false));
    } else {
      const std::size_t steps = contents.Steps();
      const State before = Now();
      EditAtRandom();
      if (contents.Steps() == steps) {
        ASSERT_EQ(Now(), before);
        continue;
      }
      states.resize(static_cast<std::size_t>(++place));
      states.push_back(Now());
    }
  }
  while (place > 0)
    ASSERT_NO_FATAL_FAILURE(Go(true));
  EXPECT_FALSE(contents.Undo());
  while (place + 1 < static_cast<int>(states.size()))
    ASSERT_NO_FATAL_FAILURE(Go(false));
  EXPECT_FALSE(contents.Redo());
}

} // namespace
