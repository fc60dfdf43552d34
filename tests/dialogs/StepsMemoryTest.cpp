// Steps take memory for what they changed, however long the list is. Where the sanitizer counts
// what is held.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/ListContents.h"
#include "dialogs/WorkingCopy.h"
#include "symbollist/SymbolList.h"
#include "tests/support/StandInTest.h"

#if defined(TQ_SANITIZE)
extern "C" size_t __sanitizer_get_current_allocated_bytes();

namespace {

// Of this many headings, which have rows whatever the service knows.
constexpr int kRows = 100000;

class StepsMemory : public StandInTest {
protected:
  static std::unique_ptr<CSymbolList> LongList() {
    std::string ids;
    for (int i = 0; i < kRows; ++i)
      ids += (i > 0 ? "," : "") + std::string("Heading ") + std::to_string(i) + ":";
    auto list = std::make_unique<CSymbolList>();
    list->SetID("L");
    list->Update1(ids.c_str());
    return list;
  }
  // The bytes that are held behind `work` and were not in front of it.
  template <typename Work> static long HeldBy(Work work) {
    const auto before = static_cast<long>(__sanitizer_get_current_allocated_bytes());
    work();
    return static_cast<long>(__sanitizer_get_current_allocated_bytes()) - before;
  }
  static constexpr long kEach = 600; // bytes of a small step
};

TEST_F(StepsMemory, AThousandMovesInALongListAreSmall) {
  tq::ListContents contents(*LongList());
  ASSERT_EQ(contents.RowCount(), kRows);
  EXPECT_LT(HeldBy([&] {
              for (int i = 0; i < 1000; ++i) {
                ASSERT_TRUE(contents.Move(std::vector{kRows - 1 - i}, true));
                contents.KeepSelection({{{kRows - 1 - i, 1}}, 0}, {{{kRows - 2 - i, 1}}, 0});
              }
            }),
            1000 * kEach);
  EXPECT_EQ(contents.Steps(), 1000u);
}

TEST_F(StepsMemory, NearlyAllRowsThatMoveTogetherAreSmall) {
  tq::ListContents contents(*LongList());
  std::vector<int> rows;
  for (int row = 1; row < kRows; ++row)
    rows.push_back(row);
  EXPECT_LT(HeldBy([&] { contents.Move(rows, true); }), kEach);
}

TEST_F(StepsMemory, RowsThatAreRemovedAreHeldOnce) {
  tq::ListContents contents(*LongList());
  std::vector<int> rows;
  for (int row = 0; row < kRows; ++row)
    rows.push_back(row);
  const long freed = 3L * kRows; // the numbers of the rows alone take more
  EXPECT_LT(HeldBy([&] { contents.Remove(rows); }), freed);
  EXPECT_LT(HeldBy([&] { contents.Undo(); }), freed);
}

TEST_F(StepsMemory, AnEditOfALongListIsSmallForTheListsEditor) {
  tq::WorkingCopy copy;
  copy.KeepSteps();
  copy.Add(LongList());
  for (int i = 0; i < 5; ++i) {
    auto edited = std::make_unique<CSymbolList>(copy.At(0));
    tq::ListContents contents(*edited);
    contents.InsertHeading(i, "Fresh:");
    contents.InsertHeading(contents.RowCount() - i, "Fresh:");
    contents.Move(std::vector{50000 + i, 60000}, true);
    edited->Update1(contents.Ids());
    // The edited list takes the place of the one before, which is as long.
    EXPECT_LT(HeldBy([&] {
                auto list = std::make_unique<CSymbolList>(*edited);
                copy.Replace(0, std::move(list));
              }),
              10 * kEach);
  }
}

TEST_F(StepsMemory, AMovedListIsNotHeldTwice) {
  tq::WorkingCopy copy;
  copy.KeepSteps();
  copy.Add(LongList());
  copy.Add(LongList());
  EXPECT_LT(HeldBy([&] { copy.MoveUp(1); }), kEach);
  EXPECT_LT(HeldBy([&] { copy.Remove(0, tq::WorkingCopy::DefaultRule::StaysInPlace); }), kEach);
}

} // namespace
#endif
