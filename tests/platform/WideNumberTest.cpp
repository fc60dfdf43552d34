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

} // namespace
} // namespace tq
