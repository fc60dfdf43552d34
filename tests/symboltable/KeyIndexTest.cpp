#include "symboltable/KeyIndex.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace {

using tq::KeyIndex;

// Nodes by number; several may have one hash, as different keys can.
class KeyIndexTest : public testing::Test {
protected:
  void Add(std::uint32_t node, std::uint32_t hash) {
    hashes[node] = hash;
    index.Add(hash, node, [this](std::uint32_t other) { return hashes.at(other); });
  }
  void Remove(std::uint32_t node) {
    index.Remove(hashes.at(node), node);
    hashes.erase(node);
  }
  bool Has(std::uint32_t node, std::uint32_t hash) const {
    return index.Find(hash, [&](std::uint32_t other) { return other == node; }) == node;
  }

  KeyIndex index;
  std::map<std::uint32_t, std::uint32_t> hashes;
};

TEST_F(KeyIndexTest, EmptyIndexFindsNothing) {
  EXPECT_FALSE(Has(0, 0));
  EXPECT_EQ(index.Footprint(), 0u);
}

TEST_F(KeyIndexTest, GrowsFromNothing) {
  for (std::uint32_t node = 0; node < 1000; ++node)
    Add(node, node * 2654435761u);
  for (std::uint32_t node = 0; node < 1000; ++node)
    EXPECT_TRUE(Has(node, node * 2654435761u));
}

TEST_F(KeyIndexTest, ManyNodesOfOneHashAreKeptApart) {
  for (std::uint32_t node = 0; node < 100; ++node)
    Add(node, 77);
  for (std::uint32_t node = 0; node < 100; node += 2)
    Remove(node);
  for (std::uint32_t node = 0; node < 100; ++node)
    EXPECT_EQ(Has(node, 77), node % 2 == 1) << node;
}

TEST_F(KeyIndexTest, ReservedRoomIsNotOutgrown) {
  index.Reset(5000);
  const std::size_t reserved = index.Footprint();
  for (std::uint32_t node = 0; node < 5000; ++node)
    Add(node, node * 2654435761u);
  EXPECT_EQ(index.Footprint(), reserved);
}

TEST_F(KeyIndexTest, YearsOfRemovingAndAddingDoNotMakeItGrow) {
  index.Reset(1000);
  const std::size_t reserved = index.Footprint();
  std::mt19937 random(5);
  for (std::uint32_t node = 0; node < 900; ++node)
    Add(node, static_cast<std::uint32_t>(random()));
  for (std::uint32_t node = 900; node < 100000; ++node) {
    Remove(node - 900);
    Add(node, static_cast<std::uint32_t>(random()));
  }
  EXPECT_EQ(index.Footprint(), reserved);
  for (const auto& [node, hash] : hashes)
    EXPECT_TRUE(Has(node, hash));
}

TEST_F(KeyIndexTest, AnswersAsAMapDoesUnderRandomUse) {
  std::mt19937 random(11);
  std::uint32_t next = 0;
  for (int step = 0; step < 20000; ++step) {
    // Few hashes, so that groups overflow and tags collide.
    const std::uint32_t hash = static_cast<std::uint32_t>(random()) & 0xff00000fu;
    if (random() % 5 < 3 || hashes.empty()) {
      Add(next++, hash);
      continue;
    }
    const auto victim = std::next(hashes.begin(), static_cast<long>(random() % hashes.size()));
    if (random() % 2 == 0) {
      Remove(victim->first);
      continue;
    }
    const auto [node, old] = *victim;
    index.Replace(old, node, next);
    hashes.erase(node);
    hashes[next] = old;
    EXPECT_FALSE(Has(node, old));
    EXPECT_TRUE(Has(next++, old));
  }
  for (const auto& [node, hash] : hashes)
    EXPECT_TRUE(Has(node, hash));
}

} // namespace
