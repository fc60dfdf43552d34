// Sub-groups that the terminal pushes in.
#include "tests/interface/GroupsPushesTest.h"

namespace {

class GroupsSubPushesTest : public GroupsPushesTest {};

TEST_F(GroupsSubPushesTest, AddedSubGroupsStandAtTheEnd) {
  EXPECT_EQ(manager.AddSubGroup({Set(1, "tse", "", {{"b", "B"}, {"a", "A"}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM b a) OTC(WAFER) ETF");
  EXPECT_EQ(NameById("b"), "B");
  EXPECT_NE(NameById("TSE"), ""); // the set's name is not applied to the group
}

TEST_F(GroupsSubPushesTest, AGroupWithoutSubGroupsGetsSome) {
  EXPECT_EQ(manager.AddSubGroup({Set(1, "ETF", "", {{"s", "S"}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF(s)");
  EXPECT_EQ(static_cast<int>(InfoOf(2).bHasSubGroup), 0); // the record is still the service's
}

TEST_F(GroupsSubPushesTest, SubGroupsOfAnUnknownGroupAreNotAdded) {
  EXPECT_EQ(manager.AddSubGroup({Set(1, "none", "", {{"s", "S"}})}), 0);
  EXPECT_EQ(manager.AddSubGroup({Set(1, "CHIP", "", {{"s", "S"}})}), 0);
  EXPECT_EQ(manager.AddSubGroup({Set(1, "TSE", "")}), 0);
  EXPECT_EQ(Shape(1), kLoaded);
}

TEST_F(GroupsSubPushesTest, AddingAnExistingSubGroupReplacesItAndAddsNoOther) {
  EXPECT_EQ(manager.AddSubGroup({Set(1, "TSE", "", {{"new", "New"}, {"chip", "Mine"}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(chip CEM) OTC(WAFER) ETF");
  EXPECT_EQ(NameById("CHIP"), "Mine");
}

TEST_F(GroupsSubPushesTest, TheLastSetThatNamesAGroupDecidesWhetherAnyIsAdded) {
  // The last set replaces, so nothing is added, although the first set replaced nothing.
  manager.AddSubGroup({Set(1, "OTC", "", {{"new", "New"}}), Set(1, "TSE", "", {{"CHIP", "Mine"}}),
                       Set(1, "none", "", {{"s", "S"}})});
  EXPECT_EQ(Shape(1), kLoaded);
  EXPECT_EQ(NameById("CHIP"), "Mine");
  // The last set replaces nothing, so every set that replaces nothing is added.
  manager.AddSubGroup({Set(1, "TSE", "", {{"CEM", "Yours"}, {"no", "No"}}),
                       Set(1, "ETF", "", {{"e", "E"}}), Set(1, "OTC", "", {{"o", "O"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER o) ETF(e)");
  EXPECT_EQ(NameById("CEM"), "Yours");
}

TEST_F(GroupsSubPushesTest, ASetSeesWhatTheSetsInFrontOfItAdded) {
  manager.AddSubGroup(
      {Set(1, "ETF", "", {{"s", "One"}}), Set(1, "ETF", "", {{"s", "Two"}, {"t", "T"}})});
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF(s)");
  EXPECT_EQ(NameById("s"), "Two");
}

TEST_F(GroupsSubPushesTest, UpdateOfSubGroupsReplacesInPlace) {
  void* const chip = Handle(1, "CHIP");
  EXPECT_EQ(manager.UpdateSubGroup({Set(1, "tse", "x", {{"cem", "Mine"}, {"none", "No"}}),
                                    Set(1, "none", "x", {{"CHIP", "No"}})}),
            1);
  EXPECT_EQ(Shape(1), "TSE(CHIP cem) OTC(WAFER) ETF");
  EXPECT_EQ(NameById("CEM"), "Mine");
  EXPECT_EQ(Handle(1, "CHIP"), chip);
  EXPECT_EQ(manager.UpdateSubGroup({Set(1, "TSE", "", {{"WAFER", "x"}})}), 0);
}

TEST_F(GroupsSubPushesTest, AReplacedSubGroupFetchesItsMembersAnew) {
  EXPECT_EQ(MembersOf(Handle(1, "CHIP")), "2330.TW,2454.TW");
  manager.UpdateSubGroup({Set(1, "TSE", "", {{"CHIP", "Mine"}})});
  EXPECT_EQ(MembersOf(Handle(1, "CHIP")), "2330.TW,2454.TW");
  EXPECT_EQ(Fetched(), 2);
}

TEST_F(GroupsSubPushesTest, NamesOfSubGroups) {
  void* const chip = Handle(1, "CHIP");
  EXPECT_EQ(manager.UpdateSubGroupName({Set(1, "tse", "No", {{"chip", "Mine"}, {"none", "No"}}),
                                        Set(1, "OTC", "No", {{"CEM", "No"}})}),
            1);
  EXPECT_EQ(NameOf(chip), "Mine");
  CString name;
  EXPECT_EQ(manager.GetGroupName(1, "CHIP", name, 0), 1);
  EXPECT_STREQ(name, "Mine");
  EXPECT_NE(NameById("CEM"), "No");
  EXPECT_NE(NameById("TSE"), "No");
  EXPECT_EQ(manager.UpdateSubGroupName({Set(1, "ETF", "", {{"CHIP", "No"}})}), 0);
}

TEST_F(GroupsSubPushesTest, ANewNameKeepsTheMembers) {
  MembersOf(Handle(1, "CHIP"));
  manager.UpdateSubGroupName({Set(1, "TSE", "", {{"CHIP", "Mine"}})});
  MembersOf(Handle(1, "CHIP"));
  EXPECT_EQ(Fetched(), 1);
}

TEST_F(GroupsSubPushesTest, RemovedSubGroupsGoFromTheirGroupOnly) {
  manager.AddSubGroup({Set(1, "OTC", "", {{"CHIP", "Other"}})});
  EXPECT_EQ(manager.RemoveSubGroup({Set(1, "tse", "", {{"chip", ""}, {"none", ""}})}), 1);
  EXPECT_EQ(Shape(1), "TSE(CEM) OTC(WAFER CHIP) ETF");
  EXPECT_EQ(NameById("CHIP"), "Other");
  EXPECT_EQ(manager.RemoveSubGroup({Set(1, "TSE", "", {{"chip", ""}})}), 0);
  EXPECT_EQ(
      manager.RemoveSubGroup({Set(1, "TSE", "", {{"CEM", ""}}), Set(1, "none", "", {{"WAFER", ""}}),
                              Set(1, "OTC", "", {{"WAFER", ""}, {"CHIP", ""}})}),
      1);
  EXPECT_EQ(Shape(1), "TSE OTC ETF");
}

} // namespace
