// The index against a plain search, at random, with many ids that occur more than once.
#include "groups/GroupIdIndex.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

tq::FoldedId Folded(const std::string& id) {
  tq::FoldedId folded = {};
  EXPECT_TRUE(tq::FoldId(id, folded));
  return folded;
}

// The ids by number; one that was taken out is empty.
using Numbers = std::vector<std::optional<std::string>>;

std::uint32_t PlainFind(const Numbers& numbers, const std::string& id, std::size_t from) {
  for (std::size_t i = from; i < numbers.size(); ++i)
    if (numbers[i] && Folded(*numbers[i]) == Folded(id))
      return static_cast<std::uint32_t>(i);
  return tq::GroupIdIndex::kNone;
}

TEST(GroupIdIndexTest, EmptyFindsNothing) {
  tq::GroupIdIndex index;
  EXPECT_EQ(index.Find(Folded("a")), tq::GroupIdIndex::kNone);
  index.Build(0, [](std::size_t) { return tq::FoldedId{}; });
  EXPECT_EQ(index.Find(Folded("")), tq::GroupIdIndex::kNone);
  index.Append(Folded("a"));
  EXPECT_EQ(index.Find(Folded("A")), 0u);
}

TEST(GroupIdIndexTest, AnswersAsAPlainSearch) {
  std::mt19937 random(3);
  for (int round = 0; round < 200; ++round) {
    const std::size_t different = 1 + random() % 40;
    const auto anyId = [&] {
      return (random() % 2 == 0 ? "g" : "G") + std::to_string(random() % different);
    };
    Numbers numbers;
    for (std::size_t n = random() % 60; n > 0; --n)
      numbers.emplace_back(anyId());
    tq::GroupIdIndex index;
    index.Build(numbers.size(), [&](std::size_t i) { return Folded(*numbers[i]); });
    for (int step = 0; step < 60; ++step) {
      const std::string id = anyId();
      const std::uint32_t first = PlainFind(numbers, id, 0);
      ASSERT_EQ(index.Find(Folded(id)), first);
      if (first != tq::GroupIdIndex::kNone) {
        ASSERT_EQ(index.Next(first), PlainFind(numbers, id, first + 1));
      }
      if (step % 3 == 0 && first != tq::GroupIdIndex::kNone) {
        index.RemoveFirst(first);
        numbers[first].reset();
      } else if (step % 3 == 1) {
        index.Append(Folded(id));
        numbers.emplace_back(id);
      }
    }
  }
}

} // namespace
