// A level of groups at random against a plain array of ids, many of which occur more than once.
#include "groups/GroupLevel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/groups/GroupRecords.h"

namespace {

using groups::Record;

tq::FoldedId Folded(const std::string& id) {
  tq::FoldedId folded = {};
  EXPECT_TRUE(tq::FoldId(id, folded));
  return folded;
}

class GroupLevelTest : public testing::Test {
protected:
  std::size_t Random(std::size_t below) { return random_() % below; }
  std::string AnyId() { return (Random(2) == 0 ? "g" : "G") + std::to_string(Random(different)); }

  // Some levels are large enough for an index, others are not.
  void FillAtRandom() {
    different = 1 + Random(40);
    ids.clear();
    std::vector<GroupInfo> records;
    for (std::size_t n = Random(60); n > 0; --n) {
      ids.push_back(AnyId());
      records.push_back(Record(1, ids.back(), ""));
    }
    level.Assign(records);
  }
  int PlainFind(const std::string& id) const {
    const auto found = std::find_if(ids.begin(), ids.end(), [&](const std::string& other) {
      return Folded(other) == Folded(id);
    });
    return found == ids.end() ? -1 : static_cast<int>(found - ids.begin());
  }
  bool PlainRemoveFirst(const std::string& id) {
    const int at = PlainFind(id);
    if (at >= 0)
      ids.erase(ids.begin() + at);
    return at >= 0;
  }
  void Append() {
    ids.push_back(AnyId());
    level.Append(Record(1, ids.back(), ""));
  }
  void RemoveSome() {
    std::vector<tq::FoldedId> removed;
    bool any = false;
    for (std::size_t n = Random(4); n > 0; --n) {
      const std::string id = AnyId();
      removed.push_back(Folded(id));
      any = PlainRemoveFirst(id) || any;
    }
    ASSERT_EQ(level.RemoveFirsts(removed), any);
  }
  void ExpectSameIds() const {
    ASSERT_EQ(level.Count(), static_cast<int>(ids.size()));
    for (int i = 0; i < level.Count(); ++i)
      ASSERT_EQ(level.InfoAt(i).szID, ids[static_cast<std::size_t>(i)]);
  }

  std::mt19937 random_{3};
  std::size_t different = 1;
  std::vector<std::string> ids;
  tq::GroupLevel level;
};

TEST_F(GroupLevelTest, AnEmptyLevelFindsNothing) {
  EXPECT_EQ(level.Find(""), -1);
  EXPECT_EQ(level.Find("a"), -1);
}

TEST_F(GroupLevelTest, FindsTheFirstGroupOfAnIdBetweenAllChanges) {
  for (int round = 0; round < 200; ++round) {
    FillAtRandom();
    for (int step = 0; step < 60; ++step) {
      const std::string id = AnyId();
      ASSERT_EQ(level.Find(id.c_str()), PlainFind(id));
      if (step % 3 == 0)
        Append();
      else if (step % 6 == 1)
        RemoveSome();
    }
    ExpectSameIds();
  }
}

// The second removal of an id removes the second group with it.
TEST_F(GroupLevelTest, RemovesAsManyGroupsOfAnIdAsItIsGivenTimes) {
  level.Assign({{Record(1, "a", "1"), Record(1, "b", "2"), Record(1, "A", "3"), Record(1, "a", "4"),
                 Record(1, "c", "5")}});
  EXPECT_TRUE(level.RemoveFirsts({{Folded("a"), Folded("x"), Folded("A")}}));
  EXPECT_EQ(groups::Shape(level), "b/2 a/4 c/5");
}

TEST_F(GroupLevelTest, RemovingWhatIsNotThereChangesNothing) {
  level.Assign({{Record(1, "a", "1")}});
  CGroupList* const list = level.ListAt(0);
  EXPECT_FALSE(level.RemoveFirsts({{Folded("x")}}));
  EXPECT_FALSE(level.RemoveFirsts({}));
  EXPECT_EQ(level.ListAt(0), list);
}

TEST_F(GroupLevelTest, WhatAGroupHasMovesWithIt) {
  level.Assign({{Record(1, "a", "1"), Record(1, "b", "2"), Record(1, "c", "3")}});
  level.MakeSubsAt(2).Append(Record(1, "s", "S"));
  CGroupList* const list = level.ListAt(1);
  level.RemoveFirsts({{Folded("a")}});
  EXPECT_EQ(level.ListAt(0), list);
  EXPECT_EQ(groups::Shape(level), "b/2 c/3(s/S)");
}

TEST_F(GroupLevelTest, AReplacedGroupHasNothingOfTheOldOne) {
  level.Assign({{Record(1, "a", "1"), Record(1, "b", "2")}});
  level.MakeSubsAt(0).Append(Record(1, "s", "S"));
  level.ListAt(0)->SetName("old");
  level.ReplaceAt(0, Record(1, "A", "new"));
  EXPECT_EQ(groups::Shape(level), "A/new b/2");
}

// The list takes over existing sub-groups; later ones are added to the list.
TEST_F(GroupLevelTest, AListOwnsTheSubGroups) {
  level.Assign({{Record(1, "a", "1")}});
  level.MakeSubsAt(0).Append(Record(1, "s", "S"));
  CGroupList* const list = level.ListAt(0);
  level.MakeSubsAt(0).Append(Record(1, "t", "T"));
  EXPECT_EQ(list->GetSubCount(), 2);
  EXPECT_EQ(level.SubsAt(0), list->Subs());
}

TEST_F(GroupLevelTest, TellsWhetherAnyGroupSaysThatItHasSubGroups) {
  EXPECT_FALSE(level.Assign({}));
  EXPECT_FALSE(level.Assign({{Record(1, "a", "1"), Record(1, "b", "2")}}));
  EXPECT_TRUE(level.Assign({{Record(1, "a", "1"), Record(1, "b", "2", -1)}}));
}

} // namespace
