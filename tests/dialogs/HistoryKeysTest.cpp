// Which keys take a step back, and which do it again.
#include "dialogs/undo/HistoryKeys.h"

#include <gtest/gtest.h>

namespace {

using tq::HistoryWay;
using tq::HistoryWayOf;

constexpr WindowHeldKeys kControl = {false, true, false};
constexpr WindowHeldKeys kBoth = {true, true, false};

TEST(HistoryKeys, ControlWithZTakesBackAndWithYDoesAgain) {
  EXPECT_EQ(HistoryWayOf(WindowKey::Z, kControl), HistoryWay::Undo);
  EXPECT_EQ(HistoryWayOf(WindowKey::Y, kControl), HistoryWay::Redo);
}

TEST(HistoryKeys, ControlAndShiftDoAgain) {
  EXPECT_EQ(HistoryWayOf(WindowKey::Z, kBoth), HistoryWay::Redo);
  EXPECT_EQ(HistoryWayOf(WindowKey::Y, kBoth), HistoryWay::Redo);
}

TEST(HistoryKeys, OthersDoNeither) {
  for (const WindowKey key : {WindowKey::A, WindowKey::Delete, WindowKey::Enter})
    EXPECT_EQ(HistoryWayOf(key, kControl), HistoryWay::None);
  for (const WindowHeldKeys held : {WindowHeldKeys{}, WindowHeldKeys{true, false, false}}) {
    EXPECT_EQ(HistoryWayOf(WindowKey::Z, held), HistoryWay::None);
    EXPECT_EQ(HistoryWayOf(WindowKey::Y, held), HistoryWay::None);
  }
}

} // namespace
