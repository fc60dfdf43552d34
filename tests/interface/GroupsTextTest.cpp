// Groups: loads and the order of types.
#include "tests/interface/GroupsText.h"

namespace {

// --- Loads and the order of types ---------------------------------------------------------------

TEST_F(GroupsTextTest, AFullLoadHasTheTypesInTheirOrder) {
  for (int type = 1; type <= 21; ++type)
    EXPECT_EQ(manager.GetGroupIdx(type), type - 1);
  ExpectIndices({{101, 21}, {201, 22}, {0, -1}, {22, -1}, {100, -1}, {202, -1}});
}

TEST_F(GroupsTextTest, AFullLoadAsksForEachTypeAndForTheSubGroupsOfItsGroups) {
  standin::ClearCalls();
  EXPECT_NE(manager.LoadGroupList(), 0);
  EXPECT_EQ(CallsOf("VLGetSubGroup"), "1,|1,TSE|1,OTC|2,|2,CTW|3,|4,|5,|6,|7,|7,TXO|8,|9,|10,|"
                                      "11,|12,|13,|14,|15,|16,|17,|18,|19,|20,|21,|101,|201,|"
                                      "201,VORNG01");
  EXPECT_EQ(Fetched(), 0);
}

TEST_F(GroupsTextTest, OnlyTypesFrom1To201CanBeLoaded) {
  for (int type : {0, -1, 202, 1000})
    EXPECT_EQ(manager.LoadGroupList(type), 0) << type;
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(manager.LoadGroupList(201), 1);
  EXPECT_NE(manager.LoadGroupList(200), 0);
  ExpectIndices({{200, 22}, {201, 23}});
}

TEST_F(GroupsTextTest, OnlyTypesFrom1To200CanBeAddedAndRemoved) {
  for (int type : {0, -1, 201, 202}) {
    EXPECT_EQ(manager.AddNewGroup(type), 0) << type;
    EXPECT_EQ(manager.AddGroupList(type, false), 0) << type;
    EXPECT_EQ(manager.RemoveGroupList(type), 0) << type;
  }
  ExpectIndices({{1, 0}, {101, 21}, {201, 22}});
}

TEST_F(GroupsTextTest, AnAddedTypeStandsInFrontOfTheFirstGreaterOne) {
  EXPECT_NE(manager.AddNewGroup(50), 0);
  ExpectIndices({{21, 20}, {50, 21}, {101, 22}, {201, 23}});
  EXPECT_NE(manager.AddNewGroup(150), 0);
  ExpectIndices({{50, 21}, {101, 22}, {150, 23}, {201, 24}});
  EXPECT_NE(manager.AddNewGroup(22), 0);
  ExpectIndices({{21, 20}, {22, 21}, {50, 22}, {101, 23}, {150, 24}, {201, 25}});
}

TEST_F(GroupsTextTest, WithoutAGreaterTypeTheAddedOneIsLast) {
  manager.ClearGroupList();
  EXPECT_NE(manager.AddNewGroup(7), 0);
  EXPECT_NE(manager.AddNewGroup(2), 0);
  EXPECT_NE(manager.AddNewGroup(30), 0);
  ExpectIndices({{2, 0}, {7, 1}, {30, 2}, {1, -1}});
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
  EXPECT_EQ(Shape(7), "TXO(TXOC TXOP)");
}

TEST_F(GroupsTextTest, ATypeAddedAgainStandsBehindTheFirstOneAndIsTheOneOfTheMap) {
  standin::Market market = standin::CurrentMarket();
  market.groups = {{1, "", "NEW", "新", "新", {}}};
  standin::SetMarket(market);
  EXPECT_NE(manager.AddGroupList(1, false), 0);
  ExpectIndices({{1, 1}, {2, 2}, {101, 22}, {201, 23}});
  EXPECT_EQ(Shape(1), "NEW");
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
}

TEST_F(GroupsTextTest, OfATypeThatIsThereTwiceTheFirstIsRemoved) {
  manager.AddNewGroup(1);
  EXPECT_NE(manager.RemoveGroupList(1), 0);
  ExpectIndices({{1, -1}, {2, 2}, {201, 23}});
  EXPECT_EQ(Top(1), 0);
  EXPECT_EQ(Top(2), 0) << "position 2 is type 3";
}

TEST_F(GroupsTextTest, AReloadOfAnAddTakesThePlaceOfTheType) {
  EXPECT_NE(manager.AddGroupList(1, true), 0);
  ExpectIndices({{1, 0}, {2, 1}, {201, 22}});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
}

TEST_F(GroupsTextTest, ARemovalLeavesTheOtherIndicesAsTheyWere) {
  EXPECT_NE(manager.RemoveGroupList(3), 0);
  ExpectIndices({{1, 0}, {2, 1}, {3, -1}, {4, 3}, {7, 6}, {101, 21}, {201, 22}});
}

TEST_F(GroupsTextTest, AfterARemovalTheTypesBehindItAnswerWithTheNextOne) {
  manager.RemoveGroupList(3);
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
  EXPECT_EQ(Top(3), 0);
  EXPECT_EQ(Shape(6), "TXO(TXOC TXOP)");
  EXPECT_EQ(Top(7), 0);
  EXPECT_EQ(Shape(101), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
  EXPECT_EQ(Top(201), 0);
  EXPECT_NE(Handle(6, "TXOC"), nullptr);
  EXPECT_EQ(Handle(7, "TXOC"), nullptr);
  EXPECT_EQ(manager.GetGroupSymbolCount(6, "TXOC"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(7, "TXOC", "TXO21000L6.TF"), 0);
}

TEST_F(GroupsTextTest, AnAddAfterARemovalCountsTheStaleIndicesUp) {
  manager.RemoveGroupList(3);
  EXPECT_NE(manager.AddNewGroup(3), 0);
  ExpectIndices({{2, 1}, {3, 2}, {4, 4}, {6, 6}, {7, 7}, {101, 22}, {201, 23}});
  EXPECT_EQ(Shape(6), "TXO(TXOC TXOP)");
  EXPECT_EQ(Top(7), 0);
}

TEST_F(GroupsTextTest, TwoRemovalsMoveTheAnswersTwoPlaces) {
  manager.RemoveGroupList(3);
  EXPECT_NE(manager.RemoveGroupList(4), 0) << "the type itself, whatever its index says";
  ExpectIndices({{4, -1}, {5, 4}, {7, 6}, {201, 22}});
  EXPECT_EQ(Shape(5), "TXO(TXOC TXOP)");
  EXPECT_EQ(Top(6), 0);
  EXPECT_NE(manager.RemoveGroupList(7), 0);
  EXPECT_EQ(Top(5), 0);
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
}

TEST_F(GroupsTextTest, AnAddAtTheEndOfAStaleMapGoesWhereItBelongs) {
  manager.RemoveGroupList(101);
  ExpectIndices({{21, 20}, {101, -1}, {201, 22}});
  manager.AddNewGroup(150);
  ExpectIndices({{150, 21}, {201, 23}});
  EXPECT_EQ(Top(201), 0);
}

TEST_F(GroupsTextTest, AReloadBesideAStaleMapReachesItsOwnType) {
  manager.RemoveGroupList(3);
  AddToMarket({7, "", "MORE", "多", "多", {}});
  EXPECT_EQ(manager.LoadGroupList(7), 1);
  EXPECT_EQ(Shape(6), "TXO(TXOC TXOP) MORE");
  ExpectIndices({{7, 6}});
}

TEST_F(GroupsTextTest, AFullLoadMendsTheIndices) {
  manager.RemoveGroupList(3);
  manager.AddNewGroup(150);
  EXPECT_NE(manager.LoadGroupList(), 0);
  ExpectIndices({{3, 2}, {4, 3}, {101, 21}, {150, -1}, {201, 22}});
  EXPECT_EQ(Shape(7), "TXO(TXOC TXOP)");
}

TEST_F(GroupsTextTest, AReloadOfOneTypeAsksForItAlone) {
  standin::ClearCalls();
  EXPECT_EQ(manager.UpdateGroup(7, "not used"), manager.UpdateGroupType(7));
  EXPECT_EQ(CallsOf("VLGetSubGroup"), "7,|7,TXO|7,|7,TXO");
}

TEST_F(GroupsTextTest, AnUpdateOfAnotherTypeLoadsEverything) {
  for (int type : {201, 0, -1, 202}) {
    manager.AddNewGroup(50);
    standin::ClearCalls();
    manager.UpdateGroup(type, nullptr);
    EXPECT_EQ(Asked(), 28) << type; // 23 types and 5 groups with sub-groups
    EXPECT_EQ(manager.GetGroupIdx(50), -1) << type;
    manager.AddNewGroup(50);
    manager.UpdateGroupType(type);
    EXPECT_EQ(manager.GetGroupIdx(50), -1) << type;
  }
}

TEST_F(GroupsTextTest, AClearLeavesNoType) {
  manager.ClearGroupList();
  ExpectIndices({{1, -1}, {101, -1}, {201, -1}});
  EXPECT_EQ(Top(1), 0);
  EXPECT_EQ(manager.LoadGroupList(201), 0) << "only a full load makes the cloud groups";
}

TEST_F(GroupsTextTest, AFailedLoadLeavesTheTypeThereAndEmpty) {
  standin::FailAlways("VLGetSubGroup");
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  ExpectIndices({{1, 0}});
  EXPECT_EQ(Top(1), 0);
  standin::FailCall("VLGetSubGroup", 0);
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Top(1), 3);
}

TEST_F(GroupsTextTest, SubGroupsAreAskedForUnderTheTypeOfTheRecord) {
  GroupInfo record = {};
  record.nType = 7;
  std::strcpy(record.szID, "TXO");
  record.bHasSubGroup = 1;
  standin::AnswerGroups(5, "", {record}, 1);
  standin::ClearCalls();
  manager.LoadGroupList(5);
  EXPECT_EQ(CallsOf("VLGetSubGroup"), "5,|7,TXO");
  EXPECT_EQ(Shape(5), "TXO(TXOC TXOP)");
  EXPECT_EQ(manager.GetGroupSymbolCount(5, "TXOC"), 1);
}

TEST_F(GroupsTextTest, AThirdLevelIsLoadedAndNeverFoundById) {
  AddToMarket({1, "CHIP", "DEEP", "深", "深", {"2330.TW"}});
  manager.LoadGroupList(1);
  EXPECT_EQ(manager.GetGroupCount(1, Handle(1, "CHIP")), 1);
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupInfo(1, Handle(1, "CHIP"), 0, &info), 1);
  EXPECT_STREQ(info.szID, "DEEP");
  EXPECT_EQ(Handle(1, "DEEP"), nullptr);
  EXPECT_EQ(SubName(1, "DEEP"), "");
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "DEEP"), 0);
  EXPECT_EQ(manager.GetGroupCounts(1, "CHIP"), 0) << "no top-level group";
}

} // namespace
