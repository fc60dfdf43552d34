// The types of groups: loading, adding, updating and removing them.
#include "tests/interface/GroupsTest.h"

namespace {

class GroupsTypesTest : public GroupsTest {};

TEST_F(GroupsTypesTest, ThereAreNoneBeforeInit) {
  EXPECT_EQ(manager.GetGroupIdx(1), -1);
  EXPECT_EQ(manager.GetGroupCount(1, nullptr), 0);
  EXPECT_EQ(Handle(1, "TSE"), nullptr);
  EXPECT_EQ(manager.AddGroup({Set(1, "new", "New")}), 0);
  EXPECT_EQ(Asked(), 0);
}

TEST_F(GroupsTypesTest, InitLoadsThem) {
  EXPECT_EQ(StartWithoutTables(), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
}

TEST_F(GroupsTypesTest, InitLoadsThemLastAndAnewEachTime) {
  StartWithTables();
  manager.RemoveGroupList(1);
  EXPECT_EQ(StartWithTables(), 1);
  EXPECT_EQ(standin::Calls().back().operation, "VLGetSubGroup");
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
}

TEST_F(GroupsTypesTest, AnInitThatFailsAtTheTablesLoadsNone) {
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(StartWithTables(), 0);
  EXPECT_EQ(Asked(), 0);
  EXPECT_EQ(manager.GetGroupIdx(1), -1);
}

TEST_F(GroupsTypesTest, AServiceThatFailsForGroupsDoesNotFailInit) {
  standin::FailAlways("VLGetSubGroup");
  EXPECT_EQ(StartWithTables(), 1);
  EXPECT_EQ(manager.GetGroupIdx(201), 22);
  EXPECT_EQ(manager.GetGroupCount(1, nullptr), 0);
}

TEST_F(GroupsTypesTest, FullLoadYields1To21And101And201InThisOrder) {
  EXPECT_EQ(manager.LoadGroupList(), 1);
  for (int type = 1; type <= 21; ++type)
    EXPECT_EQ(manager.GetGroupIdx(type), type - 1);
  EXPECT_EQ(manager.GetGroupIdx(101), 21);
  EXPECT_EQ(manager.GetGroupIdx(201), 22);
  for (const int type : {-1, 0, 22, 100, 102, 200, 202})
    EXPECT_EQ(manager.GetGroupIdx(type), -1);
}

TEST_F(GroupsTypesTest, FullLoadAsksOnceForEachTypeAndEachGroupWithSubGroups) {
  manager.LoadGroupList();
  EXPECT_EQ(Asked(), 23 + 5);
  EXPECT_EQ(Fetched(), 0);
}

TEST_F(GroupsTypesTest, LoadingOneTypeReadsItAnew) {
  manager.LoadGroupList();
  AddToMarket({2, "", "NEW", "新", "新", {}});
  AddToMarket({1, "", "NEW", "新", "新", {}});
  EXPECT_EQ(manager.LoadGroupList(2), 1);
  EXPECT_EQ(Shape(2), "CTW(AI a2) NEW");
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
}

TEST_F(GroupsTypesTest, LoadingOneTypeTakes1To201) {
  manager.LoadGroupList();
  for (const int type : {-5, 0, 202})
    EXPECT_EQ(manager.LoadGroupList(type), 0);
  EXPECT_EQ(manager.LoadGroupList(201), 1);
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(manager.LoadGroupList(200), 1);
  EXPECT_EQ(manager.GetGroupIdx(200), 22);
  EXPECT_EQ(manager.GetGroupIdx(201), 23);
}

TEST_F(GroupsTypesTest, LoadingATypeWhileTheServiceFailsLeavesItEmpty) {
  manager.LoadGroupList();
  standin::FailCall("VLGetSubGroup", 1);
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Shape(1), "");
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
}

TEST_F(GroupsTypesTest, AddedTypesTakeTheirPlaceInTheOrder) {
  AddToMarket({50, "", "FIFTY", "五十", "五十", {}});
  manager.LoadGroupList();
  EXPECT_EQ(manager.AddNewGroup(50), 1);
  EXPECT_EQ(manager.GetGroupIdx(50), 21);
  EXPECT_EQ(manager.GetGroupIdx(101), 22);
  EXPECT_EQ(manager.GetGroupIdx(201), 23);
  EXPECT_EQ(Shape(50), "FIFTY");
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
}

TEST_F(GroupsTypesTest, AddingAndRemovingTheCloudGroupsDoesNothing) {
  manager.LoadGroupList();
  standin::ClearCalls();
  EXPECT_EQ(manager.AddNewGroup(201), 0);
  EXPECT_EQ(manager.RemoveGroupList(201), 0);
  EXPECT_EQ(manager.AddNewGroup(0), 0);
  EXPECT_EQ(manager.RemoveGroupList(0), 0);
  EXPECT_EQ(Asked(), 0);
  EXPECT_EQ(manager.GetGroupIdx(201), 22);
}

TEST_F(GroupsTypesTest, AddingATypeAgainMakesASecondOne) {
  manager.LoadGroupList();
  EXPECT_EQ(manager.AddNewGroup(2), 1);
  EXPECT_EQ(manager.GetGroupIdx(2), 2);
  EXPECT_EQ(manager.GetGroupIdx(3), 3);
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
}

TEST_F(GroupsTypesTest, AddGroupListReloadsOrAdds) {
  manager.LoadGroupList();
  EXPECT_EQ(manager.AddGroupList(2, true), 1);
  EXPECT_EQ(manager.GetGroupIdx(2), 1);
  EXPECT_EQ(manager.AddGroupList(2, false), 1);
  EXPECT_EQ(manager.GetGroupIdx(2), 2);
  EXPECT_EQ(manager.AddGroupList(201, true), 1);
  EXPECT_EQ(manager.AddGroupList(201, false), 0);
  EXPECT_EQ(manager.AddGroupList(202, true), 0);
}

TEST_F(GroupsTypesTest, UpdateOf1To200ReloadsThatType) {
  manager.LoadGroupList();
  standin::ClearCalls();
  EXPECT_EQ(manager.UpdateGroup(3, "unused"), 1);
  EXPECT_EQ(manager.UpdateGroup(3, nullptr), 1);
  EXPECT_EQ(manager.UpdateGroupType(3), 1);
  EXPECT_EQ(Asked(), 3);
  EXPECT_EQ(manager.UpdateGroupType(200), 1);
  EXPECT_EQ(manager.GetGroupIdx(200), 22);
}

TEST_F(GroupsTypesTest, UpdateOfAnythingElseReloadsEverything) {
  for (const int type : {201, 0, -1, 202}) {
    standin::ClearCalls();
    EXPECT_EQ(manager.UpdateGroup(type, "unused"), 1);
    EXPECT_EQ(Asked(), 28);
    EXPECT_EQ(manager.UpdateGroupType(type), 1);
    EXPECT_EQ(Asked(), 56);
  }
}

// Deliberate: terminals use the positions that they were given until the next full load.
TEST_F(GroupsTypesTest, TypesBehindARemovedOneAnswerForTheirRightNeighbour) {
  manager.LoadGroupList();
  EXPECT_EQ(manager.RemoveGroupList(6), 1);
  EXPECT_EQ(manager.GetGroupIdx(6), -1);
  EXPECT_EQ(manager.GetGroupIdx(7), 6);
  EXPECT_EQ(manager.GetGroupIdx(201), 22);
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
  EXPECT_EQ(Shape(7), "");
  EXPECT_EQ(Shape(101), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
  EXPECT_EQ(Shape(201), "");
  manager.LoadGroupList();
  EXPECT_EQ(Shape(7), "TXO(TXOC TXOP)");
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
}

TEST_F(GroupsTypesTest, APositionBehindTheArrayIsAMissForEveryQuestion) {
  manager.LoadGroupList();
  manager.RemoveGroupList(6);
  GroupInfo info = {};
  CString name = "x";
  SymbolInfo record = {};
  EXPECT_EQ(manager.GetGroupCount(201, nullptr), 0);
  EXPECT_EQ(manager.GetGroupCounts(201, nullptr), 0);
  EXPECT_EQ(manager.GetGroupCounts(201, "VORNG01"), 0);
  EXPECT_EQ(manager.GetGroupInfo(201, nullptr, 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(201, nullptr, 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(201, "VORNG01", 0, &info), 0);
  EXPECT_EQ(Handle(201, "VORNG01"), nullptr);
  EXPECT_EQ(manager.GetGroupName(201, "VORNG0101", name, 0), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(201, "VORNG0101"), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(201, "VORNG0101", 0, &record), 0);
}

// Pushes and reloads search the array and do not use the positions.
TEST_F(GroupsTypesTest, PushesReachTheRightTypeAfterARemoval) {
  manager.LoadGroupList();
  manager.RemoveGroupList(6);
  EXPECT_EQ(manager.AddGroup({Set(201, "new", "New")}), 1);
  EXPECT_EQ(Shape(101), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK new");
  EXPECT_EQ(manager.LoadGroupList(201), 1);
  EXPECT_EQ(Shape(101), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
}

// Symptom: GetGroupIdx(101) was 2. A type added behind all others moves none.
TEST_F(GroupsTypesTest, ATypeBehindAllOthersMovesNoPosition) {
  manager.AddNewGroup(1);
  manager.AddNewGroup(101);
  manager.RemoveGroupList(1);
  EXPECT_EQ(manager.AddNewGroup(150), 1);
  EXPECT_EQ(manager.GetGroupIdx(101), 1);
  EXPECT_EQ(manager.GetGroupIdx(150), 1);
}

TEST_F(GroupsTypesTest, RemovingReturnsWhetherThereWasOne) {
  manager.LoadGroupList();
  EXPECT_EQ(manager.RemoveGroupList(6), 1);
  EXPECT_EQ(manager.RemoveGroupList(6), 0);
  EXPECT_EQ(manager.RemoveGroupList(50), 0);
}

TEST_F(GroupsTypesTest, ClearingLeavesNoTypeAndASecondClearIsFine) {
  manager.LoadGroupList();
  manager.ClearGroupList();
  manager.ClearGroupList();
  for (int type = 0; type <= 202; ++type)
    EXPECT_EQ(manager.GetGroupIdx(type), -1);
  EXPECT_EQ(manager.LoadGroupList(201), 0);
  EXPECT_EQ(manager.LoadGroupList(2), 1);
  EXPECT_EQ(manager.GetGroupIdx(2), 0);
}

} // namespace
