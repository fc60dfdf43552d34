// Groups that the terminal pushes in.
#include "tests/interface/GroupsPushesTest.h"

namespace {

TEST_F(GroupsPushesTest, NoSetsAndSetsOfOtherTypesChangeNothing) {
  using Push = int (CTQSymbolListMgr::*)(const std::vector<CGroupSet>&);
  const Push pushes[] = {&CTQSymbolListMgr::AddGroup,           &CTQSymbolListMgr::UpdateGroup,
                         &CTQSymbolListMgr::UpdateGroupName,    &CTQSymbolListMgr::RemoveGroup,
                         &CTQSymbolListMgr::AddSubGroup,        &CTQSymbolListMgr::UpdateSubGroup,
                         &CTQSymbolListMgr::UpdateSubGroupName, &CTQSymbolListMgr::RemoveSubGroup};
  for (const Push push : pushes) {
    EXPECT_EQ((manager.*push)({}), 0);
    EXPECT_EQ((manager.*push)({CGroupSet(), Set(50, "TSE", "x", {{"CHIP", "x"}})}), 0);
    EXPECT_EQ((manager.*push)({Set(0, "TSE", "x"), Set(202, "TSE", "x")}), 0);
  }
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsPushesTest, AddedGroupsStandAtTheEndInTheSetsOrder) {
  EXPECT_EQ(manager.AddGroup({Set(1, "b", "B"), Set(2, "x", "X"), Set(1, "a", "A")}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF b a");
  EXPECT_EQ(Shape(2), "CTW(AI a2) x");
}

TEST_F(GroupsPushesTest, AnAddedGroupHasTheSetsFieldsAndSubGroups) {
  manager.AddGroup({Set(1, "new", "New", {{"s1", "One"}, {"s2", "Two"}}), Set(1, "bare", "Bare")});
  EXPECT_EQ(SubShape(1, "new"), "(s1 s2)");
  GroupInfo info = InfoOf(3);
  EXPECT_EQ(static_cast<int>(info.nType), 1);
  EXPECT_STREQ(info.szName, "New");
  EXPECT_EQ(static_cast<int>(info.bHasSubGroup), 1);
  EXPECT_EQ(static_cast<int>(InfoOf(4).bHasSubGroup), 0);
  EXPECT_EQ(manager.GetGroupInfos(1, "new", 1, &info), 1);
  EXPECT_EQ(static_cast<int>(info.nType), 1);
  EXPECT_STREQ(info.szName, "Two");
  EXPECT_EQ(static_cast<int>(info.bHasSubGroup), 0);
  EXPECT_EQ(NameById("S2"), "Two");
}

TEST_F(GroupsPushesTest, MembersOfAPushedGroupAreTheServices) {
  manager.UpdateGroup({Set(1, "ETF", "Mine")});
  EXPECT_EQ(MembersOf(Handle(1, "ETF")), "0050.TW");
  manager.AddGroup({Set(1, "unknown", "Unknown")});
  EXPECT_EQ(MembersOf(Handle(1, "unknown")), "");
}

TEST_F(GroupsPushesTest, AddingAnExistingIdReplacesInPlaceAndAddsNoOther) {
  EXPECT_EQ(manager.AddGroup({Set(1, "new", "New"), Set(1, "otc", "Mine", {{"s", "S"}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) otc(s) ETF");
  EXPECT_EQ(NameById("OTC"), "Mine");
  EXPECT_EQ(Handle(1, "WAFER"), nullptr);
}

// The rule holds for each type separately.
TEST_F(GroupsPushesTest, AReplacementInOneTypeDoesNotKeepAnotherFromAdding) {
  manager.AddGroup({Set(1, "TSE", "Mine"), Set(2, "new", "New"), Set(1, "new", "New")});
  EXPECT_EQ(Shape(1), "TSE OTC(WAFER) ETF");
  EXPECT_EQ(Shape(2), "CTW(AI a2) new");
}

TEST_F(GroupsPushesTest, OfTwoSetsWithOneNewIdBothAreAdded) {
  manager.AddGroup({Set(1, "new", "One"), Set(1, "NEW", "Two")});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF new NEW");
  EXPECT_EQ(NameById("new"), "One");
}

TEST_F(GroupsPushesTest, OfTwoSetsWithOneExistingIdTheLastStays) {
  manager.AddGroup({Set(1, "OTC", "One"), Set(1, "OTC", "Two")});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC ETF");
  EXPECT_EQ(NameById("OTC"), "Two");
}

TEST_F(GroupsPushesTest, OnlyTheFirstOfSeveralGroupsOfAnIdIsReplaced) {
  manager.AddGroup({Set(1, "new", "One"), Set(1, "new", "Two")});
  manager.UpdateGroup({Set(1, "new", "Three")});
  EXPECT_STREQ(InfoOf(3).szName, "Three");
  EXPECT_STREQ(InfoOf(4).szName, "Two");
}

TEST_F(GroupsPushesTest, ASubGroupsIdIsNoGroupsId) {
  EXPECT_EQ(manager.UpdateGroup({Set(1, "CHIP", "x")}), 0);
  EXPECT_EQ(manager.RemoveGroup({Set(1, "CHIP", "x")}), 0);
  EXPECT_EQ(manager.AddGroup({Set(1, "CHIP", "x")}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF CHIP");
}

TEST_F(GroupsPushesTest, TextsThatDoNotFitAreCut) {
  const std::string name = "x" + std::string(60, '\xA4');
  manager.AddGroup({Set(1, "12345678901234567", name.c_str(), {{"abcdefghijklmnopq", "s"}})});
  const GroupInfo info = InfoOf(3);
  EXPECT_STREQ(info.szID, "1234567890123456");
  EXPECT_EQ(std::string(info.szName), name.substr(0, 47));
  EXPECT_EQ(SubShape(1, "1234567890123456"), "(abcdefghijklmnop)");
  // Ids are compared whole, so the longer text is no group's id.
  EXPECT_EQ(manager.UpdateGroup({Set(1, "12345678901234567", "y")}), 0);
  EXPECT_EQ(Handle(1, "12345678901234567"), nullptr);
}

TEST_F(GroupsPushesTest, UpdateReplacesInPlaceAndPassesOthersOver) {
  void* const tse = Handle(1, "TSE");
  EXPECT_EQ(manager.UpdateGroup({Set(1, "none", "None"), Set(1, "etf", "Mine", {{"s", "S"}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) etf(s)");
  EXPECT_EQ(Handle(1, "TSE"), tse);
  EXPECT_EQ(manager.UpdateGroup({Set(1, "none", "None")}), 0);
}

TEST_F(GroupsPushesTest, UpdateOfAGroupTakesItsSubGroupsAway) {
  EXPECT_NE(Handle(1, "CHIP"), nullptr);
  manager.UpdateGroup({Set(1, "TSE", "Mine")});
  EXPECT_EQ(Shape(1), "TSE OTC(WAFER) ETF");
  EXPECT_EQ(Handle(1, "CHIP"), nullptr);
}

TEST_F(GroupsPushesTest, NamesOfTopLevelGroups) {
  void* const tse = Handle(1, "TSE");
  EXPECT_EQ(manager.UpdateGroupName({Set(1, "tse", "Mine"), Set(1, "ETF", "Yours"),
                                     Set(1, "CHIP", "No"), Set(2, "OTC", "No")}),
            1);
  EXPECT_EQ(NameOf(tse), "Mine");
  EXPECT_STREQ(InfoOf(0).szName, "Mine");
  EXPECT_STREQ(InfoOf(0).szID, "TSE");
  EXPECT_STREQ(InfoOf(2).szName, "Yours");
  EXPECT_NE(NameById("CHIP"), "No");
  EXPECT_NE(NameById("OTC"), "No");
  EXPECT_EQ(Shape(1), kLoaded);
  EXPECT_EQ(manager.UpdateGroupName({Set(1, "CHIP", "No")}), 0);
}

TEST_F(GroupsPushesTest, ANameIsCutAtAWholeCharacter) {
  const std::string name = "x" + std::string(60, '\xA4');
  manager.UpdateGroupName({Set(1, "TSE", name.c_str())});
  EXPECT_EQ(NameById("TSE"), name.substr(0, 47));
}

TEST_F(GroupsPushesTest, RemovedGroupsGoWithTheirSubGroups) {
  EXPECT_EQ(manager.RemoveGroup({Set(1, "tse", ""), Set(1, "none", ""), Set(2, "ETF", "")}), 1);
  EXPECT_EQ(Shape(1), "OTC(WAFER) ETF");
  EXPECT_EQ(Handle(1, "CHIP"), nullptr);
  EXPECT_EQ(manager.RemoveGroup({Set(1, "tse", "")}), 0);
  EXPECT_EQ(manager.RemoveGroup({Set(1, "OTC", ""), Set(1, "ETF", "")}), 1);
  EXPECT_EQ(Shape(1), "");
}

TEST_F(GroupsPushesTest, EachSetRemovesTheFirstThatIsLeft) {
  manager.AddGroup({Set(1, "n", "One"), Set(1, "N", "Two"), Set(1, "n", "Three")});
  manager.RemoveGroup({Set(1, "n", ""), Set(1, "n", "")});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF n");
  EXPECT_EQ(NameById("n"), "Three");
}

TEST_F(GroupsPushesTest, HandlesOfOtherGroupsStayGood) {
  void* const etf = Handle(1, "ETF");
  void* const cem = Handle(1, "CEM");
  manager.AddGroup({Set(1, "n", "N")});
  manager.RemoveGroup({Set(1, "OTC", "")});
  manager.RemoveSubGroup({Set(1, "TSE", "", {{"CHIP", ""}})});
  manager.AddSubGroup({Set(1, "TSE", "", {{"s", "S"}})});
  manager.UpdateGroup({Set(1, "n", "M")});
  manager.AddNewGroup(50);
  asked = 1;
  EXPECT_EQ(Handle(1, "ETF"), etf);
  EXPECT_EQ(Handle(1, "CEM"), cem);
  EXPECT_EQ(MembersOf(etf), "0050.TW");
  EXPECT_EQ(MembersOf(cem), "1101.TW");
}

TEST_F(GroupsPushesTest, CloudGroupsCanBePushedToo) {
  EXPECT_EQ(manager.AddSubGroup({Set(201, "VORNG01", "", {{"VORNG0104", "Four"}})}), 1);
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103 VORNG0104) PICK");
}

} // namespace
