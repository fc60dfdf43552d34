// The types of groups: loading, adding, removing, the cloud refresh.
#include "tests/groups/GroupStoreTest.h"

namespace {

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
  EXPECT_EQ(store.Load(201), 0); // only a full load creates the cloud groups
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

TEST_F(GroupStoreTest, RemovingTakes1To200) {
  store.LoadAll();
  for (const int type : {-1, 0, 22, 201, 202})
    EXPECT_EQ(store.Remove(type), 0);
  EXPECT_EQ(GroupOf(201), "g201");
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
