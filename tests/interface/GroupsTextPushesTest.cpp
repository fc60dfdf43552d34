// Pushed groups in detail: what is replaced, added or ignored.
#include "tests/interface/GroupsTest.h"

namespace {

class GroupsTextPushesTest : public GroupsTest {
protected:
  GroupsTextPushesTest() {
    manager.LoadGroupList();
    standin::ClearCalls();
  }
  std::string SubName(const char* id) {
    CString name;
    manager.GetGroupName(1, id, name, 0);
    return name.GetString();
  }
  static constexpr const char* kLoaded = "TSE(CHIP CEM) OTC(WAFER) ETF";
};

TEST_F(GroupsTextPushesTest, SetsThatMatchNothingAreAllAdded) {
  manager.AddGroup({Set(1, "N1", "one", {{"S1", "sub one"}, {"S2", "sub two"}}),
                    Set(1, "N2", "two"), Set(1, "N1", "again")});
  EXPECT_EQ(Shape(1), std::string(kLoaded) + " N1(S1 S2) N2 N1(S1 S2)");
  GroupInfo info = {};
  ASSERT_EQ(manager.GetGroupInfo(1, nullptr, 3, &info), 1);
  EXPECT_EQ(info.nType, 1);
  EXPECT_STREQ(info.szName, "one");
  EXPECT_EQ(info.bHasSubGroup, 1);
  ASSERT_EQ(manager.GetGroupInfo(1, nullptr, 4, &info), 1);
  EXPECT_EQ(info.bHasSubGroup, 0);
  ASSERT_EQ(manager.GetGroupInfos(1, "n1", 1, &info), 1);
  EXPECT_EQ(info.nType, 1);
  EXPECT_STREQ(info.szName, "sub two");
  EXPECT_EQ(info.bHasSubGroup, 0);
  EXPECT_EQ(Asked(), 0) << "the service is not asked";
}

TEST_F(GroupsTextPushesTest, OneMatchReplacesInPlaceAndKeepsTheOthersOut) {
  manager.AddGroup({Set(1, "NEW", "new"), Set(1, "otc", "new otc", {{"S", "sub"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) otc(S) ETF");
  EXPECT_EQ(NameOf(Handle(1, "OTC")), "new otc");
}

TEST_F(GroupsTextPushesTest, EveryMatchIsReplaced) {
  manager.AddGroup({Set(1, "TSE", "a"), Set(1, "ETF", "b", {{"S", "sub"}}), Set(1, "TSE", "c")});
  EXPECT_EQ(Shape(1), "TSE OTC(WAFER) ETF(S)");
  EXPECT_EQ(NameOf(Handle(1, "TSE")), "c");
}

TEST_F(GroupsTextPushesTest, AMatchInOneTypeDoesNotKeepOutSetsOfAnother) {
  manager.AddGroup({Set(1, "ETF", "a"), Set(1, "N1", "b"), Set(2, "N2", "c"), Set(50, "X", "d")});
  EXPECT_EQ(Shape(1), kLoaded);
  EXPECT_EQ(NameOf(Handle(1, "ETF")), "a");
  EXPECT_EQ(Shape(2), "CTW(AI a2) N2");
  EXPECT_EQ(manager.GetGroupIdx(50), -1);
}

TEST_F(GroupsTextPushesTest, TheIdOfASubGroupIsNoMatchForAGroup) {
  manager.AddGroup({Set(1, "CHIP", "top")});
  EXPECT_EQ(Shape(1), std::string(kLoaded) + " CHIP");
  manager.UpdateGroup({Set(1, "CEM", "top")});
  manager.UpdateGroupName({Set(1, "CEM", "top")});
  manager.RemoveGroup({Set(1, "CEM", "")});
  EXPECT_EQ(Shape(1), std::string(kLoaded) + " CHIP");
  EXPECT_EQ(SubName("CEM"), standin::ToAnsi("水泥"));
}

TEST_F(GroupsTextPushesTest, OfTwoGroupsWithOneIdTheFirstIsReplacedNamedAndRemoved) {
  AddToMarket({50, "", "D", "一", "一", {}});
  AddToMarket({50, "", "D", "二", "二", {}});
  manager.AddNewGroup(50);
  GroupInfo info = {};
  manager.UpdateGroup({Set(50, "D", "first", {{"S", "sub"}})});
  ASSERT_EQ(manager.GetGroupInfo(50, nullptr, 1, &info), 1);
  EXPECT_EQ(info.szName, standin::ToAnsi("二"));
  manager.UpdateGroupName({Set(50, "d", "named")});
  ASSERT_EQ(manager.GetGroupInfo(50, nullptr, 0, &info), 1);
  EXPECT_STREQ(info.szName, "named");
  manager.RemoveGroup({Set(50, "d", "")});
  ASSERT_EQ(manager.GetGroupCount(50, nullptr), 1);
  ASSERT_EQ(manager.GetGroupInfo(50, nullptr, 0, &info), 1);
  EXPECT_EQ(info.szName, standin::ToAnsi("二"));
}

TEST_F(GroupsTextPushesTest, AReplacementKnowsOnlyWhatTheSetSays) {
  void* before = Handle(1, "CHIP");
  EXPECT_EQ(MembersOf(before), "2330.TW,2454.TW");
  manager.UpdateGroup({Set(1, "TSE", "x", {{"CHIP", "y"}}), Set(1, "none", "z")});
  EXPECT_EQ(Shape(1), "TSE(CHIP) OTC(WAFER) ETF");
  EXPECT_EQ(SubName("CHIP"), "y");
  const int fetched = Fetched();
  EXPECT_EQ(MembersOf(Handle(1, "CHIP")), "2330.TW,2454.TW");
  EXPECT_EQ(Fetched(), fetched + 1);
}

TEST_F(GroupsTextPushesTest, ANewNameKeepsGroupAndMembers) {
  void* handle = Handle(1, "ETF");
  MembersOf(handle);
  manager.UpdateGroupName({Set(1, "etf", "Funds", {{"X", "x"}}), Set(1, "none", "n")});
  EXPECT_EQ(Handle(1, "ETF"), handle);
  EXPECT_EQ(NameOf(handle), "Funds");
  EXPECT_EQ(MembersOf(handle), "0050.TW");
  EXPECT_EQ(Fetched(), 1);
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsTextPushesTest, RemovalTakesEachSetsGroup) {
  manager.RemoveGroup(
      {Set(1, "tse", ""), Set(1, "none", ""), Set(1, "ETF", ""), Set(2, "OTC", "")});
  EXPECT_EQ(Shape(1), "OTC(WAFER)");
  EXPECT_EQ(Handle(1, "CHIP"), nullptr);
  EXPECT_EQ(Shape(2), "CTW(AI a2)");
}

// --- Sub-groups ---------------------------------------------------------------------------------

TEST_F(GroupsTextPushesTest, NewSubGroupsAreAddedAtTheEnd) {
  manager.AddSubGroup({Set(1, "tse", "ignored", {{"S1", "one"}, {"S2", "two"}}),
                       Set(1, "none", "", {{"S3", "three"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM S1 S2) OTC(WAFER) ETF");
  EXPECT_EQ(SubName("S2"), "two");
  EXPECT_EQ(NameOf(Handle(1, "TSE")), standin::ToAnsi("上市"));
}

TEST_F(GroupsTextPushesTest, AReplacedSubGroupKeepsTheSetsOtherPairsOut) {
  manager.AddSubGroup({Set(1, "TSE", "", {{"NEW", "new"}, {"chip", "replaced"}})});
  EXPECT_EQ(Shape(1), "TSE(chip CEM) OTC(WAFER) ETF");
  EXPECT_EQ(SubName("chip"), "replaced");
}

TEST_F(GroupsTextPushesTest, TheLastSetWithAGroupDecidesThatNothingIsAdded) {
  manager.AddSubGroup({Set(1, "OTC", "", {{"NEW", "new"}}),
                       Set(1, "TSE", "", {{"CEM", "replaced"}}), Set(1, "none", "", {{"S", "s"}})});
  EXPECT_EQ(Shape(1), kLoaded);
  EXPECT_EQ(SubName("CEM"), "replaced");
}

TEST_F(GroupsTextPushesTest, TheLastSetWithAGroupDecidesThatTheNewOnesAreAdded) {
  manager.AddSubGroup({Set(1, "TSE", "", {{"CEM", "replaced"}, {"OUT", "out"}}),
                       Set(1, "OTC", "", {{"NEW", "new"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER NEW) ETF");
  EXPECT_EQ(SubName("CEM"), "replaced");
}

TEST_F(GroupsTextPushesTest, ASecondSetWithTheSameNewIdReplacesWhatTheFirstAdded) {
  manager.AddSubGroup({Set(1, "ETF", "", {{"A", "first"}}), Set(1, "ETF", "", {{"a", "second"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF(a)");
  EXPECT_EQ(SubName("a"), "second");
}

TEST_F(GroupsTextPushesTest, TheAllOrNothingOfSubGroupsIsForEachTypeItself) {
  manager.AddSubGroup({Set(2, "CTW", "", {{"NEW2", "new"}}), Set(1, "TSE", "", {{"CEM", "c"}})});
  EXPECT_EQ(Shape(2), "CTW(AI a2 NEW2)");
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsTextPushesTest, AnUpdateReplacesSubGroupsInPlaceAndAddsNone) {
  MembersOf(Handle(1, "CHIP"));
  manager.UpdateSubGroup({Set(1, "TSE", "x", {{"NEW", "n"}, {"chip", "c"}}),
                          Set(1, "OTC", "x", {{"CEM", "other group's"}})});
  EXPECT_EQ(Shape(1), "TSE(chip CEM) OTC(WAFER) ETF");
  EXPECT_EQ(SubName("chip"), "c");
  EXPECT_EQ(SubName("CEM"), standin::ToAnsi("水泥"));
  EXPECT_EQ(Fetched(), 1);
  MembersOf(Handle(1, "CHIP"));
  EXPECT_EQ(Fetched(), 2) << "a new group asks anew";
}

TEST_F(GroupsTextPushesTest, NamesOfSubGroupsChangeInTheirOwnGroupOnly) {
  void* handle = Handle(1, "CHIP");
  manager.UpdateSubGroupName({Set(1, "tse", "x", {{"chip", "c"}, {"WAFER", "w"}, {"TSE", "t"}})});
  EXPECT_EQ(Handle(1, "CHIP"), handle);
  EXPECT_EQ(SubName("CHIP"), "c");
  EXPECT_NE(SubName("WAFER"), "w");
  EXPECT_EQ(NameOf(Handle(1, "TSE")), standin::ToAnsi("上市"));
}

TEST_F(GroupsTextPushesTest, SubGroupsAreRemovedFromTheirOwnGroupOnly) {
  manager.RemoveSubGroup({Set(1, "tse", "", {{"chip", ""}, {"WAFER", ""}}),
                          Set(1, "none", "", {{"CEM", ""}}), Set(2, "CTW", "", {{"a2", ""}})});
  EXPECT_EQ(Shape(1), "TSE(CEM) OTC(WAFER) ETF");
  EXPECT_EQ(Shape(2), "CTW(AI)");
}

TEST_F(GroupsTextPushesTest, ATopLevelIdIsNoSubGroup) {
  manager.RemoveSubGroup({Set(1, "CHIP", "", {{"CHIP", ""}})});
  manager.UpdateSubGroup({Set(1, "CHIP", "", {{"CHIP", "x"}})});
  manager.AddSubGroup({Set(1, "CHIP", "", {{"NEW", "x"}})});
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsTextPushesTest, CloudGroupsTakePushesToo) {
  manager.AddGroup({Set(201, "NEW", "n", {{"S", "s"}})});
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK NEW(S)");
  manager.RemoveSubGroup({Set(201, "VORNG01", "", {{"VORNG0102", ""}})});
  EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0103) PICK NEW(S)");
}

TEST_F(GroupsTextPushesTest, ASetWithoutPairsLeavesTheSubGroups) {
  manager.AddSubGroup({Set(1, "TSE", "x")});
  manager.UpdateSubGroup({Set(1, "TSE", "x")});
  manager.RemoveSubGroup({Set(1, "TSE", "x")});
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsTextPushesTest, ASetWithoutPairsBehindAReplacingOneLetsTheOthersBeAdded) {
  manager.AddSubGroup(
      {Set(1, "TSE", "", {{"CEM", "c"}}), Set(1, "OTC", "", {{"NEW", "n"}}), Set(1, "ETF", "")});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER NEW) ETF");
  EXPECT_EQ(SubName("CEM"), "c");
}

TEST_F(GroupsTextPushesTest, TextsEndWithTheirFields) {
  const std::string id(16, 'i');
  const std::string name(60, 'n');
  manager.AddGroup({Set(1, id.c_str(), name.c_str())});
  EXPECT_EQ(NameOf(Handle(1, id.c_str())), std::string(48, 'n'));
  manager.UpdateGroupName({Set(1, "ETF", name.c_str())});
  EXPECT_EQ(NameOf(Handle(1, "ETF")), std::string(48, 'n'));
  manager.UpdateSubGroupName({Set(1, "TSE", "", {{"CHIP", name.c_str()}})});
  EXPECT_EQ(SubName("CHIP"), std::string(48, 'n'));
}

TEST_F(GroupsTextPushesTest, NothingPushedChangesNothing) {
  const std::vector<CGroupSet> none;
  manager.AddGroup(none);
  manager.UpdateGroup(none);
  manager.UpdateGroupName(none);
  manager.RemoveGroup(none);
  manager.AddSubGroup(none);
  manager.UpdateSubGroup(none);
  manager.UpdateSubGroupName(none);
  manager.RemoveSubGroup(none);
  EXPECT_EQ(Shape(1), kLoaded);
  EXPECT_EQ(Asked(), 0);
}

TEST_F(GroupsTextPushesTest, PushesAreGoneAfterTheTypeIsLoadedAnew) {
  manager.AddGroup({Set(1, "NEW", "n")});
  manager.UpdateGroupType(1);
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsTextPushesTest, ASetsValuesAndReset) {
  CGroupSet set = Set(1, "a", "b", {{"c", "d"}});
  CGroupSet copy(set);
  EXPECT_TRUE(copy == set);
  copy.subGroups[0].second = "e";
  EXPECT_FALSE(copy == set);
  CGroupSet& itself = copy;
  copy = itself;
  EXPECT_STREQ(copy.subGroups.at(0).second, "e");
  copy.Reset();
  EXPECT_EQ(copy.type, -1);
  EXPECT_TRUE(copy == CGroupSet());
  EXPECT_STREQ(set.subGroups.at(0).second, "d");
}

} // namespace
