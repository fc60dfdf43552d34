// The value type in which the terminal pushes groups.
#include "groups/GroupSet.h"

#include <gtest/gtest.h>

namespace {

CGroupSet Sample() {
  CGroupSet set;
  set.type = 7;
  set.id = "id";
  set.name = "name";
  set.subGroups = {{"a", "A"}, {"b", "B"}};
  return set;
}

void ExpectEmpty(const CGroupSet& set) {
  EXPECT_EQ(set.type, -1);
  EXPECT_TRUE(set.id.IsEmpty());
  EXPECT_TRUE(set.name.IsEmpty());
  EXPECT_TRUE(set.subGroups.empty());
}

TEST(GroupSetTest, ANewOneIsEmptyAndOfNoType) {
  ExpectEmpty(CGroupSet());
  EXPECT_TRUE(CGroupSet() == CGroupSet());
}

TEST(GroupSetTest, ResetMakesItAsNew) {
  CGroupSet set = Sample();
  set.Reset();
  ExpectEmpty(set);
  EXPECT_TRUE(set == CGroupSet());
}

TEST(GroupSetTest, CopiesAreEqualAndIndependent) {
  CGroupSet set = Sample();
  const CGroupSet copy = set;
  CGroupSet assigned;
  assigned = set;
  EXPECT_TRUE(copy == set);
  EXPECT_TRUE(assigned == set);
  set.id = "other";
  set.subGroups[0].second = "other";
  EXPECT_TRUE(copy == Sample());
  EXPECT_TRUE(assigned == Sample());
}

TEST(GroupSetTest, AssignmentToItselfChangesNothing) {
  CGroupSet set = Sample();
  const CGroupSet& same = set;
  set = same;
  EXPECT_TRUE(set == Sample());
}

TEST(GroupSetTest, EveryFieldCountsForEquality) {
  const auto differs = [](auto change) {
    CGroupSet set = Sample();
    change(set);
    return !(set == Sample());
  };
  EXPECT_TRUE(differs([](CGroupSet& set) { set.type = 8; }));
  EXPECT_TRUE(differs([](CGroupSet& set) { set.id = "ID"; }));
  EXPECT_TRUE(differs([](CGroupSet& set) { set.name = "Name"; }));
  EXPECT_TRUE(differs([](CGroupSet& set) { set.subGroups.pop_back(); }));
  EXPECT_TRUE(differs([](CGroupSet& set) { set.subGroups[1].first = "B"; }));
  EXPECT_TRUE(differs([](CGroupSet& set) { set.subGroups[1].second = "b"; }));
  EXPECT_TRUE(differs([](CGroupSet& set) { std::swap(set.subGroups[0], set.subGroups[1]); }));
  EXPECT_FALSE(differs([](CGroupSet&) {}));
}

} // namespace
