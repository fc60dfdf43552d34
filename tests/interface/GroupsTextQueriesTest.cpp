// Groups: queries in detail.
#include "tests/interface/GroupsText.h"

namespace {

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

} // namespace
