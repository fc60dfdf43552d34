// The groups sentence by sentence: loads and their order, the map of types while it is stale, and
// what is found under which id.
#include <cstring>

#include "tests/interface/GroupsTest.h"

namespace {

class GroupsTextTest : public GroupsTest {
protected:
  GroupsTextTest() { manager.LoadGroupList(); }

  static std::string CallsOf(const char* operation) {
    std::string all;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation == operation)
        all += (all.empty() ? "" : "|") + call.arguments;
    }
    return all;
  }
  std::string SubName(int type, const char* id, int afterComma = 0) {
    CString name;
    manager.GetGroupName(type, id, name, afterComma);
    return name.GetString();
  }
  int Top(int type) { return manager.GetGroupCount(type, nullptr); }
  void ExpectIndices(const std::vector<std::pair<int, int>>& expected) {
    for (const auto& [type, index] : expected)
      EXPECT_EQ(manager.GetGroupIdx(type), index) << "type " << type;
  }
};

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

// --- Queries ------------------------------------------------------------------------------------

TEST_F(GroupsTextTest, CountsAndRecordsByIdAreThoseOfTopLevelGroupsWhateverTheCase) {
  EXPECT_EQ(manager.GetGroupCounts(1, nullptr), 3);
  EXPECT_EQ(manager.GetGroupCounts(1, "tse"), 2);
  EXPECT_EQ(manager.GetGroupCounts(1, "ETF"), 0);
  EXPECT_EQ(manager.GetGroupCounts(1, "CHIP"), 0);
  EXPECT_EQ(manager.GetGroupCounts(50, nullptr), 0);
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupInfos(1, nullptr, 2, &info), 1);
  EXPECT_STREQ(info.szID, "ETF");
  EXPECT_EQ(info.bHasSubGroup, 0);
  EXPECT_EQ(manager.GetGroupInfos(1, "tSe", 1, &info), 1);
  EXPECT_STREQ(info.szID, "CEM");
  EXPECT_EQ(info.nType, 1);
  EXPECT_EQ(manager.GetGroupInfos(1, "CHIP", 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(1, "TSE", 2, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(50, nullptr, 0, &info), 0);
}

TEST_F(GroupsTextTest, CountsAndRecordsByHandle) {
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupCount(1, Handle(1, "TSE")), 2);
  EXPECT_EQ(manager.GetGroupCount(50, nullptr), 0);
  EXPECT_EQ(manager.GetGroupInfo(1, nullptr, 0, &info), 1);
  EXPECT_STREQ(info.szID, "TSE");
  EXPECT_NE(info.bHasSubGroup, 0);
  EXPECT_EQ(manager.GetGroupInfo(1, Handle(1, "OTC"), 0, &info), 1);
  EXPECT_STREQ(info.szID, "WAFER");
  EXPECT_EQ(manager.GetGroupInfo(50, nullptr, 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfo(50, Handle(1, "OTC"), 0, &info), 0);
  EXPECT_EQ(manager.GetGroupCount(50, Handle(1, "OTC")), 0) << "the type is not loaded";
}

TEST_F(GroupsTextTest, HandlesAreFoundOnBothLevelsWhateverTheCase) {
  EXPECT_NE(Handle(1, "etf"), nullptr);
  EXPECT_NE(Handle(1, "chip"), nullptr);
  EXPECT_EQ(Handle(1, "chip"), Handle(1, "CHIP"));
  EXPECT_EQ(Handle(2, "A2"), Handle(2, "a2"));
  EXPECT_EQ(Handle(2, "CHIP"), nullptr);
  EXPECT_EQ(Handle(1, "CHI"), nullptr);
  EXPECT_EQ(Handle(50, "CHIP"), nullptr);
}

TEST_F(GroupsTextTest, AMissedHandleIsNull) {
  void* handle = &manager;
  EXPECT_EQ(manager.GetGroupHandle(1, nullptr, &handle, 0), 0);
  EXPECT_EQ(handle, nullptr);
  handle = &manager;
  EXPECT_EQ(manager.GetGroupHandle(50, "CHIP", &handle, 0), 0);
  EXPECT_EQ(handle, nullptr);
  handle = &manager;
  EXPECT_EQ(manager.GetGroupHandle(1, "none", &handle, 0), 0);
  EXPECT_EQ(handle, nullptr);
  EXPECT_NE(manager.GetGroupHandle(1, "CHIP", &handle, 0), 0);
  EXPECT_NE(handle, nullptr);
}

TEST_F(GroupsTextTest, AfterCommaCutsAtTheFirstComma) {
  EXPECT_EQ(Handle(1, "x,CHIP", 1), Handle(1, "CHIP"));
  EXPECT_EQ(Handle(1, ",CHIP", 1), Handle(1, "CHIP"));
  EXPECT_EQ(Handle(1, "CHIP", 1), Handle(1, "CHIP")) << "all of it without a comma";
  EXPECT_EQ(Handle(1, "x,CHIP", 0), nullptr);
  EXPECT_EQ(Handle(1, "x,y,CHIP", 1), nullptr) << "y,CHIP is no group";
  EXPECT_EQ(Handle(1, "CHIP,", 1), nullptr);
}

TEST_F(GroupsTextTest, TheHandleSearchTakesAGroupBeforeItsSubGroupsAndThoseBeforeTheNext) {
  AddToMarket({50, "", "A", "一", "一", {}});
  AddToMarket({50, "A", "SAME", "二", "二", {"2330.TW"}});
  AddToMarket({50, "", "SAME", "三", "三", {"2317.TW"}});
  AddToMarket({50, "SAME", "A", "四", "四", {"1101.TW"}});
  manager.AddNewGroup(50);
  EXPECT_EQ(NameOf(Handle(50, "same")), standin::ToAnsi("二"));
  EXPECT_EQ(NameOf(Handle(50, "A")), standin::ToAnsi("一"));
}

TEST_F(GroupsTextTest, NamesByIdAreThoseOfSubGroupsInExactlyThatCase) {
  EXPECT_EQ(SubName(2, "a2"), standin::ToAnsi("金控"));
  EXPECT_EQ(SubName(2, "A2"), "");
  EXPECT_EQ(SubName(2, "ai"), "");
  EXPECT_EQ(SubName(2, "CTW"), "");
  EXPECT_EQ(SubName(2, "x,a2", 1), standin::ToAnsi("金控"));
  EXPECT_EQ(SubName(2, "a2", 1), standin::ToAnsi("金控"));
  EXPECT_EQ(SubName(2, "x,a2", 0), "");
  EXPECT_EQ(SubName(1, "a2"), "");
  EXPECT_EQ(SubName(50, "a2"), "");
}

TEST_F(GroupsTextTest, ANameByHandleIgnoresTheType) {
  CString name;
  manager.GetGroupName(99, Handle(2, "a2"), name);
  EXPECT_EQ(std::string(name), standin::ToAnsi("金控"));
  manager.GetGroupName(99, Handle(1, "TSE"), name);
  EXPECT_EQ(std::string(name), standin::ToAnsi("上市"));
}

TEST_F(GroupsTextTest, SymbolsByIdAreThoseOfSubGroupsWhateverTheCase) {
  SymbolInfo record = {};
  EXPECT_EQ(manager.GetGroupSymbolCount(2, "A2"), 1);
  EXPECT_EQ(manager.GetGroupSymbolInfo(2, "A2", 0, &record), 1);
  EXPECT_STREQ(record.id, "2881.TW");
  EXPECT_EQ(manager.GetGroupSymbolCount(201, "PICK"), 0) << "a top-level group";
  EXPECT_EQ(manager.GetGroupSymbolCount(Handle(201, "pick")), 1);
}

TEST_F(GroupsTextTest, MembersByHandleNeedALoadedType) {
  CString ids = "before";
  void* handle = Handle(1, "CHIP");
  EXPECT_EQ(manager.GetGroupListIDs(handle, ids), 1);
  EXPECT_STREQ(ids, "2330.TW,2454.TW");
  manager.ClearGroupList();
  ids = "before";
  EXPECT_EQ(manager.GetGroupListIDs(nullptr, ids), 0);
  EXPECT_STREQ(ids, "");
}

TEST_F(GroupsTextTest, MembersAreAskedForOnceWithTypeIdAndFlag) {
  standin::ClearCalls();
  MembersOf(Handle(1, "chip"));
  manager.GetGroupSymbolCount(1, "CHIP");
  EXPECT_EQ(CallsOf("VLGetGroupSymbol"), "1,CHIP,1");
}

TEST_F(GroupsTextTest, FetchedMembersAreLogged) {
  const size_t before = standin::LogLines().size();
  MembersOf(Handle(2, "a2"));
  ASSERT_EQ(standin::LogLines().size(), before + 1);
  EXPECT_EQ(standin::LogLines().back().level, 64);
  EXPECT_EQ(standin::LogLines().back().text,
            "CGroupList::Update2 GroupName=" + standin::ToAnsi("金控") + ", Symbols=2881.TW");
}

TEST_F(GroupsTextTest, MembersThatFailedAreAskedForAgain) {
  standin::FailCall("VLGetGroupSymbol", 1);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "CHIP"), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "CHIP"), 2);
  EXPECT_EQ(Fetched(), 2);
}

TEST_F(GroupsTextTest, AFailureForOneGroupLeavesTheOthersTheirSubGroups) {
  standin::FailCall("VLGetSubGroup", 2);
  manager.LoadGroupList(1);
  EXPECT_EQ(Shape(1), "TSE OTC(WAFER) ETF");
}

// --- A symbol in a group ------------------------------------------------------------------------

TEST_F(GroupsTextTest, OnlyTypes2And7And8AreSearched) {
  AddToMarket({3, "", "G3", "三", "三", {"2330.TW"}});
  AddToMarket({8, "", "G8", "八", "八", {"2330.TW"}});
  manager.LoadGroupList();
  standin::ClearCalls();
  EXPECT_EQ(manager.FindSymoblInGroupList(3, "G3", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(1, "CHIP", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(201, "PICK", "2317.TW"), 0);
  EXPECT_EQ(Fetched(), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(8, "G8", "2330.TW"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(7, "TXOC", "TXO21000L6.TF"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2317.TW"), 1);
}

TEST_F(GroupsTextTest, TheSearchIsForAnyPartOfTheText) {
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "233"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "30.T"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "TW,2317"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", ","), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2330.tw"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2317.TW,2330.TW"), 0);
}

TEST_F(GroupsTextTest, TheSearchCutsTheGroupIdAndNeedsBothTexts) {
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "2,ai", "2330.TW"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "x,y,AI", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", ""), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "none", "2330.TW"), 0);
  manager.RemoveGroupList(2);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2330.TW"), 0);
}

} // namespace
