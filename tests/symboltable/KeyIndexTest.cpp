#include "symboltable/KeyIndex.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using tq::KeyIndex;

// Nodes by number, each with a unique key; several may share a hash, as different keys can.
class KeyIndexTest : public testing::Test {
protected:
  static tq::SymbolKey KeyOf(std::uint32_t node, std::uint32_t hash) {
    return {"key", {node, 0}, hash};
  }
  void Add(std::uint32_t node, std::uint32_t hash) {
    hashes[node] = hash;
    index.Add(KeyOf(node, hash), {node, ValueOf(node)},
              [this](std::uint32_t other) { return hashes.at(other); });
  }
  KeyIndex::Slot Find(std::uint32_t node, std::uint32_t hash) const {
    return index.Find(KeyOf(node, hash), [](std::uint32_t) { return false; });
  }
  void Remove(std::uint32_t node) {
    index.Remove(Find(node, hashes.at(node)));
    hashes.erase(node);
  }
  bool Has(std::uint32_t node, std::uint32_t hash) const {
    const KeyIndex::Slot slot = Find(node, hash);
    if (slot == KeyIndex::kNoSlot)
      return false;
    EXPECT_EQ(index.At(slot).node, node);
    EXPECT_EQ(index.At(slot).value, ValueOf(node));
    return true;
  }
  static std::int32_t ValueOf(std::uint32_t node) { return static_cast<std::int32_t>(node) * 3; }

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

TEST_F(KeyIndexTest, KeysLongerThanTheirCodesAreToldApartByTheirNodes) {
  const std::string left = "a key that goes on to the left";
  const std::string right = "a key that goes on to the righ";
  const tq::SymbolKey leftKey{left, {1, 2}, 7};
  const tq::SymbolKey rightKey{right, {1, 2}, 7};
  const auto hashOf = [](std::uint32_t) { return 7u; };
  index.Add(leftKey, {0, 10}, hashOf);
  index.Add(rightKey, {1, 11}, hashOf);
  const auto slotOf = [&](const tq::SymbolKey& key, std::uint32_t wanted) {
    return index.Find(key, [&](std::uint32_t node) { return node == wanted; });
  };
  EXPECT_EQ(index.At(slotOf(leftKey, 0)).value, 10);
  EXPECT_EQ(index.At(slotOf(rightKey, 1)).value, 11);
  EXPECT_EQ(slotOf(leftKey, 2), KeyIndex::kNoSlot);
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
    // Another node under the same key, as when the first of several equal symbols is removed.
    const auto [node, old] = *victim;
    KeyIndex::Entry& entry = index.At(Find(node, old));
    EXPECT_EQ(entry.node, node);
    entry = {next, ValueOf(next)};
    EXPECT_EQ(index.At(Find(node, old)).node, next);
    entry = {node, ValueOf(node)};
  }
  for (const auto& [node, hash] : hashes)
    EXPECT_TRUE(Has(node, hash));
}

} // namespace
