#include "platform/WideNumber.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tq {

namespace {

constexpr std::uint64_t kAll = ~std::uint64_t{0};

// Halves that carry into each other, and some of no particular kind.
std::vector<std::uint64_t> Samples() {
  std::vector<std::uint64_t> samples = {0, 1, 2, 0xffffffffu, 0x100000000u, kAll - 1, kAll};
  std::mt19937_64 random(1);
  for (int i = 0; i < 100; ++i)
    samples.push_back(random());
  return samples;
}

TEST(WideNumberTest, PlainProductKeepsEveryCarry) {
  EXPECT_EQ(MultiplyPlain(kAll, kAll), (WideNumber{1, kAll - 1}));
  EXPECT_EQ(MultiplyPlain(0x100000000u, 0x100000000u), (WideNumber{0, 1}));
  EXPECT_EQ(MultiplyPlain(kAll, 2), (WideNumber{kAll - 1, 1}));
  EXPECT_EQ(MultiplyPlain(0, kAll), (WideNumber{0, 0}));
}

TEST(WideNumberTest, PlainProductIsTheOneInUse) {
  for (const std::uint64_t left : Samples())
    for (const std::uint64_t right : Samples())
      ASSERT_EQ(MultiplyPlain(left, right), Multiply(left, right)) << left << " * " << right;
}

TEST(WideNumberTest, PlainShiftMovesBitsFromTheUpperHalf) {
  EXPECT_EQ(ShiftRightPlain({1, 2}, 0), (WideNumber{1, 2}));
  EXPECT_EQ(ShiftRightPlain({0, 1}, 1), (WideNumber{1ull << 63, 0}));
  EXPECT_EQ(ShiftRightPlain({0, 3}, 64), (WideNumber{3, 0}));
  EXPECT_EQ(ShiftRightPlain({kAll, kAll}, 127), (WideNumber{1, 0}));
}

TEST(WideNumberTest, PlainShiftIsTheOneInUse) {
  for (const std::uint64_t sample : Samples())
    for (unsigned bits = 0; bits < 128; ++bits) {
      const WideNumber number{sample, ~sample * 3};
      ASSERT_EQ(ShiftRightPlain(number, bits), ShiftRight(number, bits)) << bits;
    }
}

} // namespace
} // namespace tq
