// Queries about groups, by type and id and by handle.
#include "tests/interface/GroupsTest.h"

namespace {

class GroupsQueriesTest : public GroupsTest {
protected:
  GroupsQueriesTest() { manager.LoadGroupList(); }
  std::string SubName(int type, const char* id, int afterComma = 0) {
    CString name = "before";
    const int found = manager.GetGroupName(type, id, name, afterComma);
    EXPECT_EQ(found, name.IsEmpty() ? 0 : 1);
    return standin::FromAnsi(std::string(name));
  }
};

TEST_F(GroupsQueriesTest, CountWithoutHandleIsThatOfTheTopLevel) {
  EXPECT_EQ(manager.GetGroupCount(1, nullptr), 3);
  EXPECT_EQ(manager.GetGroupCount(201, nullptr), 2);
  EXPECT_EQ(manager.GetGroupCount(3, nullptr), 0);
  EXPECT_EQ(manager.GetGroupCount(50, nullptr), 0);
}

TEST_F(GroupsQueriesTest, CountWithHandleIsThatOfItsSubGroups) {
  EXPECT_EQ(manager.GetGroupCount(1, Handle(1, "TSE")), 2);
  EXPECT_EQ(manager.GetGroupCount(1, Handle(1, "ETF")), 0);
  EXPECT_EQ(manager.GetGroupCount(1, Handle(1, "CHIP")), 0);
}

// The handle names the group; the type only has to be loaded.
TEST_F(GroupsQueriesTest, AHandleIsAnsweredUnderAnyLoadedTypeAndNoOther) {
  void* const tse = Handle(1, "TSE");
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupCount(2, tse), 2);
  EXPECT_EQ(manager.GetGroupCount(50, tse), 0);
  EXPECT_EQ(manager.GetGroupInfo(2, tse, 0, &info), 1);
  EXPECT_STREQ(info.szID, "CHIP");
  EXPECT_EQ(manager.GetGroupInfo(50, tse, 0, &info), 0);
  manager.RemoveGroupList(6); // type 201 is now past the end, but still counts as loaded
  EXPECT_EQ(manager.GetGroupCount(201, tse), 2);
  EXPECT_EQ(manager.GetGroupInfo(201, tse, 1, &info), 1);
}

TEST_F(GroupsQueriesTest, CountsByIdAreThoseOfSubGroups) {
  EXPECT_EQ(manager.GetGroupCounts(1, nullptr), 3);
  EXPECT_EQ(manager.GetGroupCounts(1, "TSE"), 2);
  EXPECT_EQ(manager.GetGroupCounts(1, "tse"), 2);
  EXPECT_EQ(manager.GetGroupCounts(1, "ETF"), 0);
  EXPECT_EQ(manager.GetGroupCounts(1, "CHIP"), 0); // a sub-group
  EXPECT_EQ(manager.GetGroupCounts(1, ""), 0);
  EXPECT_EQ(manager.GetGroupCounts(50, "TSE"), 0);
}

TEST_F(GroupsQueriesTest, InfoCopiesTheServicesRecord) {
  GroupInfo* records = nullptr;
  int count = 0;
  ASSERT_NE(VLGetSubGroup(1, "", &records, &count), 0);
  ASSERT_EQ(count, 3);
  for (int i = 0; i < count; ++i) {
    GroupInfo info = {};
    EXPECT_EQ(manager.GetGroupInfo(1, nullptr, i, &info), 1);
    EXPECT_EQ(memcmp(&info, &records[i], sizeof(info)), 0);
    info = {};
    EXPECT_EQ(manager.GetGroupInfos(1, nullptr, i, &info), 1);
    EXPECT_EQ(memcmp(&info, &records[i], sizeof(info)), 0);
  }
  VLFree(records);
}

TEST_F(GroupsQueriesTest, InfoOfSubGroupsByHandleAndById) {
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupInfo(1, Handle(1, "TSE"), 1, &info), 1);
  EXPECT_STREQ(info.szID, "CEM");
  EXPECT_EQ(manager.GetGroupInfos(1, "tse", 0, &info), 1);
  EXPECT_STREQ(info.szID, "CHIP");
  EXPECT_EQ(static_cast<int>(info.nType), 1);
  EXPECT_EQ(static_cast<int>(info.bHasSubGroup), 0);
}

TEST_F(GroupsQueriesTest, InfoThatIsNotThereLeavesTheRecord) {
  GroupInfo info = {};
  info.nType = 99;
  for (const int index : {-1, 3, 1000000}) {
    EXPECT_EQ(manager.GetGroupInfo(1, nullptr, index, &info), 0);
    EXPECT_EQ(manager.GetGroupInfos(1, nullptr, index, &info), 0);
    EXPECT_EQ(manager.GetGroupInfo(1, Handle(1, "TSE"), index, &info), 0);
    EXPECT_EQ(manager.GetGroupInfos(1, "TSE", index, &info), 0);
  }
  EXPECT_EQ(manager.GetGroupInfos(1, "none", 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(1, "ETF", 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfo(50, nullptr, 0, &info), 0);
  EXPECT_EQ(manager.GetGroupInfos(50, nullptr, 0, &info), 0);
  EXPECT_EQ(static_cast<int>(info.nType), 99);
  EXPECT_EQ(manager.GetGroupInfo(1, nullptr, 0, nullptr), 0);
  EXPECT_EQ(manager.GetGroupInfos(1, nullptr, 0, nullptr), 0);
}

TEST_F(GroupsQueriesTest, HandlesOfGroupsAndSubGroups) {
  for (const char* id : {"TSE", "CHIP", "CEM", "OTC", "WAFER", "ETF"}) {
    void* handle = nullptr;
    EXPECT_EQ(manager.GetGroupHandle(1, id, &handle, 0), 1) << id;
    EXPECT_NE(handle, nullptr);
    EXPECT_EQ(Handle(1, id), handle);
  }
  EXPECT_NE(Handle(1, "TSE"), Handle(1, "CHIP"));
}

TEST_F(GroupsQueriesTest, AMissSetsTheHandleToNull) {
  for (const char* id : {"none", "", "AI", static_cast<const char*>(nullptr)}) {
    void* handle = this;
    EXPECT_EQ(manager.GetGroupHandle(1, id, &handle, 0), 0);
    EXPECT_EQ(handle, nullptr);
  }
  void* handle = this;
  EXPECT_EQ(manager.GetGroupHandle(50, "TSE", &handle, 0), 0);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(manager.GetGroupHandle(1, "TSE", nullptr, 0), 0);
}

TEST_F(GroupsQueriesTest, LetterCaseDoesNotCountForHandlesButForNames) {
  AddToMarket({3, "", "top", "大", "大", {}});
  AddToMarket({3, "top", "ab12", "小", "小", {}});
  manager.LoadGroupList(3);
  EXPECT_NE(Handle(3, "AB12"), nullptr);
  EXPECT_NE(Handle(3, "TOP"), nullptr);
  EXPECT_EQ(SubName(3, "ab12"), "小");
  EXPECT_EQ(SubName(3, "AB12"), "");
}

TEST_F(GroupsQueriesTest, TheTextBehindTheFirstCommaCountsWhenAskedFor) {
  AddToMarket({3, "", "123", "甲", "甲", {}});
  AddToMarket({3, "", "x,123", "乙", "乙", {}});
  manager.LoadGroupList(3);
  EXPECT_EQ(Handle(3, "x,123", 1), Handle(3, "123"));
  EXPECT_NE(Handle(3, "x,123", 0), Handle(3, "123"));
  EXPECT_NE(Handle(3, "x,123", 0), nullptr);
  EXPECT_EQ(Handle(3, "123", 1), Handle(3, "123"));
  EXPECT_EQ(Handle(3, "y,x,123", 1), Handle(3, "x,123"));
  EXPECT_EQ(Handle(3, "123,", 1), nullptr);
}

TEST_F(GroupsQueriesTest, IdsAreComparedWhole) {
  EXPECT_EQ(Handle(1, "TS"), nullptr);
  EXPECT_EQ(Handle(1, "TSEE"), nullptr);
  EXPECT_EQ(Handle(1, " TSE"), nullptr);
}

TEST_F(GroupsQueriesTest, TheFirstOfSeveralInScanOrderIsFound) {
  AddToMarket({3, "", "A", "甲", "甲", {}});
  AddToMarket({3, "A", "same", "甲中", "甲中", {}});
  AddToMarket({3, "", "SAME", "乙", "乙", {}});
  AddToMarket({3, "", "A", "丙", "丙", {}});
  manager.LoadGroupList(3);
  EXPECT_EQ(standin::FromAnsi(NameOf(Handle(3, "Same"))), "甲中");
  EXPECT_EQ(standin::FromAnsi(NameOf(Handle(3, "a"))), "甲");
}

TEST_F(GroupsQueriesTest, NameByHandleWhateverTheType) {
  CString name;
  for (const int type : {1, 7, 50, -1}) {
    EXPECT_EQ(manager.GetGroupName(type, Handle(1, "CHIP"), name), 1);
    EXPECT_EQ(std::string(name), standin::ToAnsi(IsTraditionChinese() ? "半導體" : "半导体"));
  }
  EXPECT_EQ(manager.GetGroupName(1, nullptr, name), 0);
  EXPECT_STREQ(name, "");
}

TEST_F(GroupsQueriesTest, NameByIdIsOnlyASubGroups) {
  EXPECT_EQ(SubName(1, "CEM"), "水泥");
  EXPECT_EQ(SubName(1, "TSE"), "");
  EXPECT_EQ(SubName(1, "ETF"), "");
  EXPECT_EQ(SubName(1, "none"), "");
  EXPECT_EQ(SubName(50, "CEM"), "");
  EXPECT_EQ(SubName(1, nullptr), "");
}

TEST_F(GroupsQueriesTest, NameByIdBehindTheFirstComma) {
  EXPECT_EQ(SubName(1, "x,CEM", 1), "水泥");
  EXPECT_EQ(SubName(1, "CEM", 1), "水泥");
  EXPECT_EQ(SubName(1, "x,CEM", 0), "");
}

TEST_F(GroupsQueriesTest, NameByIdIsThatOfTheFirstWithExactlyThatId) {
  AddToMarket({3, "", "A", "甲", "甲", {}});
  AddToMarket({3, "A", "S", "大", "大", {}});
  AddToMarket({3, "", "B", "乙", "乙", {}});
  AddToMarket({3, "B", "s", "小", "小", {}});
  AddToMarket({3, "B", "s", "小二", "小二", {}});
  manager.LoadGroupList(3);
  for (int i = 0; i < 10; ++i) { // the first look-up builds the index, later ones use it
    EXPECT_EQ(SubName(3, "s"), "小");
    EXPECT_EQ(SubName(3, "S"), "大");
    EXPECT_EQ(standin::FromAnsi(NameOf(Handle(3, "s"))), "大");
  }
}

TEST_F(GroupsQueriesTest, NothingIsAnsweredOnceEverythingIsCleared) {
  manager.ClearGroupList();
  CString ids = "before";
  EXPECT_EQ(manager.GetGroupListIDs(nullptr, ids), 0);
  EXPECT_EQ(Handle(1, "TSE"), nullptr);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "CHIP"), 0);
}

} // namespace
