// The map from types to positions: what makes it stale, and what does not depend on it.
#include "tests/groups/GroupStoreTest.h"

namespace {

TEST_F(GroupStoreTest, AddingATypeAgainPutsASecondManagerBehindTheFirst) {
  store.LoadAll();
  Answer(7, "", {Record(7, "second", "Second")});
  EXPECT_EQ(store.Add(7), 1);
  EXPECT_EQ(store.IndexOf(7), 7);
  EXPECT_EQ(GroupOf(7), "second");
  EXPECT_EQ(store.IndexOf(8), 8);
  EXPECT_EQ(GroupOf(8), "g8");
  EXPECT_EQ(store.IndexOf(201), kLast + 1);
  // The first of the two is reloaded and removed; the map leads to the second.
  Answer(7, "", {Record(7, "third", "Third")});
  EXPECT_EQ(store.Load(7), 1);
  EXPECT_EQ(GroupOf(7), "second");
  EXPECT_EQ(store.Remove(7), 1);
  EXPECT_EQ(store.IndexOf(7), -1);
  EXPECT_EQ(store.Remove(7), 1);
  EXPECT_EQ(store.Remove(7), 0);
}

TEST_F(GroupStoreTest, BothManagersOfATypeTakeAPush) {
  store.Add(7);
  store.Add(7);
  EXPECT_EQ(store.Push({Set(7, "G7", "Pushed")}, tq::UpdateGroupNames), 1);
  EXPECT_STREQ(store.Loaded(7)->GetAt(0)->GetInfo().szName, "Pushed");
  store.Remove(7);
  store.Add(3); // in front, so that the map leads to the remaining manager
  EXPECT_EQ(store.Push({Set(7, "g7", "Again")}, tq::UpdateGroupNames), 1);
}

// Deliberate: see GroupStore.h.
TEST_F(GroupStoreTest, RemovingLeavesTheMapAsItWas) {
  store.LoadAll();
  EXPECT_EQ(store.Remove(7), 1);
  EXPECT_EQ(store.IndexOf(7), -1);
  EXPECT_EQ(GroupOf(7), "");
  EXPECT_EQ(GroupOf(6), "g6");
  EXPECT_EQ(store.IndexOf(8), 7);
  EXPECT_EQ(GroupOf(8), "g9");
  EXPECT_EQ(GroupOf(21), "g101");
  EXPECT_EQ(GroupOf(101), "g201");
  store.LoadAll();
  EXPECT_EQ(GroupOf(8), "g8");
}

TEST_F(GroupStoreTest, ATypeWhosePositionLiesBehindTheArrayHasNoGroups) {
  store.LoadAll();
  store.Remove(7);
  EXPECT_EQ(store.IndexOf(201), kLast);
  EXPECT_EQ(store.Loaded(201), nullptr);
  const char* const all = nullptr;
  EXPECT_EQ(store.CountGroups(201, all), 0);
  EXPECT_EQ(store.CountGroups(201, "g201"), 0);
  EXPECT_EQ(GroupOf(201), "");
  EXPECT_EQ(store.FindHandle(201, "g201"), nullptr);
  EXPECT_EQ(store.FindSub(201, "g201"), nullptr);
  EXPECT_EQ(store.FindSubExactly(201, "g201"), nullptr);
  store.Remove(1);
  store.Remove(2);
  store.Remove(101);
  EXPECT_EQ(store.Loaded(101), nullptr);
  EXPECT_EQ(GroupOf(3), "g5");
}

TEST_F(GroupStoreTest, SearchesForSymbolsPastTheArrayFindNothing) {
  store.Add(1);
  store.Add(8);
  store.Remove(1);
  EXPECT_EQ(store.IndexOf(8), 1);
  EXPECT_EQ(store.HoldsText(8, "g8", "2330"), 0);
}

// Loading, removing and pushing search the array and do not use the map.
TEST_F(GroupStoreTest, AStaleMapDoesNotMisleadReloadingRemovingAndPushing) {
  store.LoadAll();
  store.Remove(7);
  Answer(8, "", {Record(8, "new8", "New")});
  EXPECT_EQ(store.Load(8), 1);
  EXPECT_EQ(store.Push({Set(9, "g9", "Nine")}, tq::UpdateGroupNames), 1);
  EXPECT_STREQ(store.Loaded(8)->GetAt(0)->GetInfo().szName, "Nine"); // the map leads to type 9
  EXPECT_EQ(store.Remove(8), 1);
  EXPECT_EQ(store.IndexOf(8), -1);
  EXPECT_EQ(store.Load(201), 1);
  EXPECT_EQ(refreshes, 2);
}

TEST_F(GroupStoreTest, AddingMovesStalePositionsToo) {
  store.LoadAll();
  store.Remove(7);
  EXPECT_EQ(store.Add(7), 1);
  EXPECT_EQ(store.IndexOf(7), 6);
  EXPECT_EQ(GroupOf(7), "g7");
  EXPECT_EQ(store.IndexOf(8), 8); // was 7, and is still one too far
  EXPECT_EQ(GroupOf(8), "g9");
  EXPECT_EQ(store.IndexOf(6), 5);
}

// Symptom: a stale position moved although the new type stood behind all others.
TEST_F(GroupStoreTest, ATypeBehindAllOthersMovesNoPositionStaleOrNot) {
  store.Add(1);
  store.Add(101);
  store.Remove(1);
  EXPECT_EQ(store.Add(150), 1);
  EXPECT_EQ(store.IndexOf(101), 1);
  EXPECT_EQ(store.IndexOf(150), 1);
  EXPECT_EQ(GroupOf(101), "g150");
  EXPECT_EQ(GroupOf(150), "g150");
}

// A type in front of another moves every position from there on, those of smaller types too.
TEST_F(GroupStoreTest, ATypeInFrontOfAnotherMovesEveryPositionFromThereOn) {
  store.Add(1);
  store.Add(5);
  store.Add(101);
  store.Remove(1); // 5 now leads to 101, and 101 past the end
  EXPECT_EQ(store.Add(50), 1);
  EXPECT_EQ(store.IndexOf(50), 1);
  EXPECT_EQ(store.IndexOf(5), 2);
  EXPECT_EQ(store.IndexOf(101), 3);
}

} // namespace
