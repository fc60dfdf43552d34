// The types of groups: the array of managers, the map to it that stays as it is, the cloud refresh.
#include "groups/GroupStore.h"

#include "tests/groups/GroupRecords.h"

namespace {

using groups::Answer;
using groups::Record;
using groups::Set;

constexpr int kLast = 22; // position of type 201 after a full load

class GroupStoreTest : public StandInTest {
protected:
  GroupStoreTest()
      : store([this](CGroupMgr& manager) {
          ++refreshes;
          refreshed = manager.GetType();
          seenByRefresh = groups::Shape(manager.Groups());
        }) {
    for (int type = 1; type <= 201; ++type)
      Answer(type, "", {Record(type, "g" + std::to_string(type), "T" + std::to_string(type))});
  }

  // The group that the map leads to for a type: "g7".
  std::string GroupOf(int type) {
    GroupInfo info = {};
    const char* const all = nullptr;
    return store.CopyInfo(type, all, 0, &info) != 0 ? info.szID : "";
  }

  int refreshes = 0;
  int refreshed = 0;
  std::string seenByRefresh;
  tq::GroupStore store;
};

TEST_F(GroupStoreTest, NothingIsThereBeforeTheFirstLoad) {
  EXPECT_EQ(store.IndexOf(1), -1);
  EXPECT_EQ(store.Loaded(1), nullptr);
  EXPECT_EQ(store.Push({Set(1, "g1", "x")}, tq::AddGroups), 0);
}

TEST_F(GroupStoreTest, FullLoadYieldsItsTypesInAscendingOrder) {
  EXPECT_EQ(store.LoadAll(), 1);
  for (int type = 1; type <= 21; ++type) {
    EXPECT_EQ(store.IndexOf(type), type - 1);
    EXPECT_EQ(GroupOf(type), "g" + std::to_string(type));
  }
  EXPECT_EQ(store.IndexOf(101), 21);
  EXPECT_EQ(store.IndexOf(201), kLast);
  EXPECT_EQ(GroupOf(201), "g201");
  EXPECT_EQ(store.IndexOf(22), -1);
  EXPECT_EQ(store.IndexOf(0), -1);
  EXPECT_EQ(standin::CountCalls("VLGetSubGroup"), 23);
}

TEST_F(GroupStoreTest, TheServiceIsAskedInTheOrderOfTheTypes) {
  store.LoadAll();
  ASSERT_EQ(standin::Calls().size(), 23u);
  EXPECT_EQ(standin::Calls()[0].arguments, "1,");
  EXPECT_EQ(standin::Calls()[20].arguments, "21,");
  EXPECT_EQ(standin::Calls()[21].arguments, "101,");
  EXPECT_EQ(standin::Calls()[22].arguments, "201,");
}

TEST_F(GroupStoreTest, CloudGroupsAreRefreshedOnceTheyAreLoaded) {
  store.LoadAll();
  EXPECT_EQ(refreshes, 1);
  EXPECT_EQ(refreshed, 201);
  EXPECT_EQ(seenByRefresh, "g201/T201");
  store.Load(7);
  EXPECT_EQ(refreshes, 1);
  Answer(201, "", {Record(201, "new", "New")});
  EXPECT_EQ(store.Load(201), 1);
  EXPECT_EQ(refreshes, 2);
  EXPECT_EQ(seenByRefresh, "new/New");
}

TEST_F(GroupStoreTest, WithoutARefreshTheCloudGroupsStayTheServices) {
  tq::GroupStore plain;
  EXPECT_EQ(plain.LoadAll(), 1);
  EXPECT_EQ(plain.Loaded(201)->GetCount(), 1);
}

TEST_F(GroupStoreTest, AFullLoadBeginsAnew) {
  store.LoadAll();
  store.Add(50);
  store.LoadAll();
  EXPECT_EQ(store.IndexOf(50), -1);
  EXPECT_EQ(store.IndexOf(201), kLast);
}

TEST_F(GroupStoreTest, LoadingOneTypeTakes1To201) {
  store.LoadAll();
  for (const int type : {-1, 0, 202, 1000})
    EXPECT_EQ(store.Load(type), 0);
  Answer(7, "", {Record(7, "new", "New")});
  EXPECT_EQ(store.Load(7), 1);
  EXPECT_EQ(GroupOf(7), "new");
  EXPECT_EQ(store.IndexOf(7), 6);
}

TEST_F(GroupStoreTest, LoadingATypeThatIsNotThereAddsIt) {
  EXPECT_EQ(store.Load(50), 1);
  EXPECT_EQ(GroupOf(50), "g50");
  EXPECT_EQ(store.Load(200), 1);
  EXPECT_EQ(store.Load(201), 0); // only a full load makes the cloud groups
  EXPECT_EQ(refreshes, 0);
}

TEST_F(GroupStoreTest, AddingTakes1To200) {
  for (const int type : {-1, 0, 201, 202})
    EXPECT_EQ(store.Add(type), 0);
  EXPECT_EQ(standin::CountCalls("VLGetSubGroup"), 0);
  EXPECT_EQ(store.Add(1), 1);
  EXPECT_EQ(store.Add(200), 1);
}

TEST_F(GroupStoreTest, AddedTypesStandInOrderAndMoveTheMapBehindThem) {
  store.LoadAll();
  EXPECT_EQ(store.Add(50), 1);
  EXPECT_EQ(store.IndexOf(50), 21);
  EXPECT_EQ(store.IndexOf(21), 20);
  EXPECT_EQ(store.IndexOf(101), 22);
  EXPECT_EQ(store.IndexOf(201), 23);
  for (const int type : {21, 50, 101, 201})
    EXPECT_EQ(GroupOf(type), "g" + std::to_string(type));
}

TEST_F(GroupStoreTest, ATypeBehindAllOthersIsAppended) {
  store.Add(5);
  store.Add(9);
  store.Add(7);
  EXPECT_EQ(store.IndexOf(5), 0);
  EXPECT_EQ(store.IndexOf(7), 1);
  EXPECT_EQ(store.IndexOf(9), 2);
  EXPECT_EQ(GroupOf(9), "g9");
}

TEST_F(GroupStoreTest, AddingATypeAgainPutsASecondManagerBehindTheFirst) {
  store.LoadAll();
  Answer(7, "", {Record(7, "second", "Second")});
  EXPECT_EQ(store.Add(7), 1);
  EXPECT_EQ(store.IndexOf(7), 7);
  EXPECT_EQ(GroupOf(7), "second");
  EXPECT_EQ(store.IndexOf(8), 8);
  EXPECT_EQ(GroupOf(8), "g8");
  EXPECT_EQ(store.IndexOf(201), kLast + 1);
  // The first of the two is reloaded and removed, which the map does not show.
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
  store.Add(3); // in front, so that the map leads to the manager that is left
  EXPECT_EQ(store.Push({Set(7, "g7", "Again")}, tq::UpdateGroupNames), 1);
}

TEST_F(GroupStoreTest, RemovingTakes1To200) {
  store.LoadAll();
  for (const int type : {-1, 0, 22, 201, 202})
    EXPECT_EQ(store.Remove(type), 0);
  EXPECT_EQ(GroupOf(201), "g201");
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

// What loads, removes and pushes looks at the managers, so it reaches the right ones all the same.
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
  EXPECT_EQ(store.IndexOf(8), 8); // was 7, is one too far still
  EXPECT_EQ(GroupOf(8), "g9");
  EXPECT_EQ(store.IndexOf(6), 5);
}

// A stale position moved although the new type stood behind all others.
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

// One in front of another moves every position from there on, those of smaller types too.
TEST_F(GroupStoreTest, ATypeInFrontOfAnotherMovesEveryPositionFromThereOn) {
  store.Add(1);
  store.Add(5);
  store.Add(101);
  store.Remove(1); // 5 answers under 1, 101 under 2, where nothing is
  EXPECT_EQ(store.Add(50), 1);
  EXPECT_EQ(store.IndexOf(50), 1);
  EXPECT_EQ(store.IndexOf(5), 2);
  EXPECT_EQ(store.IndexOf(101), 3);
}

TEST_F(GroupStoreTest, UpdateReloadsOneTypeOrAll) {
  store.LoadAll();
  store.Add(50);
  standin::ClearCalls();
  EXPECT_EQ(store.Update(7), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSubGroup"), 1);
  EXPECT_EQ(store.IndexOf(50), 21);
  for (const int type : {201, 0, -1, 202}) {
    store.Add(50);
    EXPECT_EQ(store.Update(type), 1);
    EXPECT_EQ(store.IndexOf(50), -1) << "not a full load for " << type;
  }
}

TEST_F(GroupStoreTest, ClearingLeavesNothing) {
  store.LoadAll();
  store.Clear();
  EXPECT_EQ(store.IndexOf(1), -1);
  EXPECT_EQ(store.Loaded(201), nullptr);
  CString ids = "x";
  EXPECT_EQ(store.CopyIds(nullptr, ids), 0);
  EXPECT_STREQ(ids, "");
}

TEST_F(GroupStoreTest, AHandleAnswersWhileAnyTypeIsLoaded) {
  groups::AnswerMembers(1, "g1", {"2330.TW"});
  CGroupList own(Record(1, "g1", "Own"));
  CString ids = "x";
  EXPECT_EQ(store.CopyIds(&own, ids), 0);
  EXPECT_STREQ(ids, "");
  store.Add(5);
  EXPECT_EQ(store.CopyIds(&own, ids), 1);
  EXPECT_STREQ(ids, "2330.TW");
}

} // namespace
