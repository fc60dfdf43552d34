// The members of groups: by type and id, by handle, and whether they hold a symbol.
#include "tests/interface/GroupsTest.h"

namespace {

class GroupsMembersTest : public GroupsTest {
protected:
  GroupsMembersTest() { manager.LoadGroupList(); }
};

TEST_F(GroupsMembersTest, MemberIdsByHandle) {
  CString ids = "before";
  EXPECT_EQ(manager.GetGroupListIDs(Handle(1, "CHIP"), ids), 1);
  EXPECT_STREQ(ids, "2330.TW,2454.TW");
  EXPECT_EQ(manager.GetGroupListIDs(Handle(201, "VORNG0101"), ids), 1);
  EXPECT_STREQ(ids, "");
  ids = "before";
  EXPECT_EQ(manager.GetGroupListIDs(nullptr, ids), 0);
  EXPECT_STREQ(ids, "");
}

TEST_F(GroupsMembersTest, MembersThatCannotBeFetchedAreNone) {
  standin::FailAlways("VLGetGroupSymbol");
  CString ids = "before";
  EXPECT_EQ(manager.GetGroupListIDs(Handle(1, "CHIP"), ids), 1);
  EXPECT_STREQ(ids, "");
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "CHIP"), 0);
  standin::FailCall("VLGetGroupSymbol", 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "CHIP"), 2);
}

TEST_F(GroupsMembersTest, SymbolsByIdAreOnlySubGroups) {
  SymbolInfo record = {};
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "chip"), 2);
  EXPECT_EQ(manager.GetGroupSymbolInfo(1, "chip", 1, &record), 1);
  EXPECT_STREQ(record.id, "2454.TW");
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "ETF"), 0); // has a member, but is not a sub-group
  EXPECT_EQ(manager.GetGroupSymbolInfo(1, "ETF", 0, &record), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, "none"), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(50, "CHIP"), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(1, nullptr), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(1, nullptr, 0, &record), 0);
}

TEST_F(GroupsMembersTest, SymbolsByHandleOfEitherLevel) {
  SymbolInfo record = {};
  EXPECT_EQ(manager.GetGroupSymbolCount(Handle(1, "ETF")), 1);
  EXPECT_EQ(manager.GetGroupSymbolInfo(Handle(1, "ETF"), 0, &record), 1);
  EXPECT_STREQ(record.id, "0050.TW");
  EXPECT_EQ(manager.GetGroupSymbolCount(Handle(1, "WAFER")), 2);
  EXPECT_EQ(manager.GetGroupSymbolInfo(Handle(1, "WAFER"), 1, &record), 1);
  EXPECT_STREQ(record.id, "5483.TE");
  EXPECT_EQ(manager.GetGroupSymbolInfo(Handle(1, "WAFER"), 2, &record), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(Handle(1, "WAFER"), -1, &record), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(Handle(1, "WAFER"), 0, nullptr), 0);
  EXPECT_EQ(manager.GetGroupSymbolCount(nullptr), 0);
  EXPECT_EQ(manager.GetGroupSymbolInfo(nullptr, 0, &record), 0);
}

TEST_F(GroupsMembersTest, MembersAreFetchedOnFirstUseAndKept) {
  EXPECT_EQ(Fetched(), 0);
  MembersOf(Handle(1, "CHIP"));
  manager.GetGroupSymbolCount(1, "CHIP");
  manager.GetGroupSymbolCount(Handle(1, "chip"));
  SymbolInfo record = {};
  manager.GetGroupSymbolInfo(1, "CHIP", 0, &record);
  EXPECT_EQ(Fetched(), 1);
  manager.LoadGroupList(1);
  EXPECT_EQ(Fetched(), 1);
  MembersOf(Handle(1, "CHIP"));
  EXPECT_EQ(Fetched(), 2);
}

TEST_F(GroupsMembersTest, SymbolsAreFoundInTypes2And7And8Only) {
  AddToMarket({3, "", "G3", "三", "三", {"2330.TW"}});
  AddToMarket({8, "", "G8", "八", "八", {"2330.TW"}});
  manager.LoadGroupList();
  standin::ClearCalls();
  EXPECT_EQ(manager.FindSymoblInGroupList(3, "G3", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(1, "CHIP", "2330.TW"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(201, "PICK", "2317.TW"), 0);
  EXPECT_EQ(Fetched(), 0); // no member was fetched
  EXPECT_EQ(manager.FindSymoblInGroupList(8, "G8", "2330.TW"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2330.TW"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(7, "txoc", "TXO21000L6.TF"), 1);
}

TEST_F(GroupsMembersTest, AnyPartOfTheMemberIdsIsFound) {
  for (const char* part : {"2330", "233", "2330.TW", "30.T", "TW,2317", ",", "7.TW"})
    EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", part), 1) << part;
  for (const char* part : {"2881", "2330.tw", "2330.TW,2317.TW,", "2317.TW,2330.TW"})
    EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", part), 0) << part;
}

TEST_F(GroupsMembersTest, FindingAlwaysCutsTheGroupIdBehindItsFirstComma) {
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "x,AI", "2330"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "2,ai", "2330"), 1);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "x,y,AI", "2330"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI,x", "2330"), 0);
}

TEST_F(GroupsMembersTest, FindingNeedsBothTextsAGroupAndALoadedType) {
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "", "2330"), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", ""), 0);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "none", "2330"), 0);
  manager.RemoveGroupList(2);
  EXPECT_EQ(manager.FindSymoblInGroupList(2, "AI", "2330"), 0);
}

} // namespace
