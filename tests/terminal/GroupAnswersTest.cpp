// Raw records that replace the market's groups.
#include <cstring>

#include "tests/terminal/GroupServiceTest.h"

namespace {

TEST_F(GroupService, AnAnswerStandsInThePlaceOfTheGroupsUnderOneParent) {
  std::vector<GroupInfo> records(2);
  std::memset(records.data(), 0xB3, sizeof(GroupInfo));
  standin::AnswerGroups(1, "", records, 1);
  Groups groups;
  ASSERT_NE(GetGroups(1, "", groups), 0);
  EXPECT_EQ(groups.count, 1);
  EXPECT_EQ(std::memcmp(groups.list, records.data(), 2 * sizeof(GroupInfo)), 0);
  Groups others;
  ASSERT_NE(GetGroups(1, "TSE", others), 0);
  EXPECT_EQ(GroupIds(others), "CHIP CEM");
  Groups otherType;
  ASSERT_NE(GetGroups(2, "", otherType), 0);
  EXPECT_EQ(GroupIds(otherType), "CTW+");
}

TEST_F(GroupService, AnAnswerMayClaimANegativeCountOrRecordsThatAreNotThere) {
  standin::AnswerGroups(1, "", std::vector<GroupInfo>(1), -1);
  Groups negative;
  ASSERT_NE(GetGroups(1, "", negative), 0);
  EXPECT_NE(negative.list, nullptr);
  EXPECT_EQ(negative.count, -1);
  standin::AnswerGroups(1, "", {}, 3);
  Groups null;
  ASSERT_NE(GetGroups(1, "", null), 0);
  EXPECT_EQ(null.list, nullptr);
  EXPECT_EQ(null.count, 3);
}

TEST_F(GroupService, AnAnswerStandsInThePlaceOfTheMembersOfOneGroupKnownOrNot) {
  std::vector<SymbolInfo> records(1);
  std::memset(records.data(), 'x', sizeof(SymbolInfo));
  standin::AnswerMembers(1, "NOSUCH", records, 1);
  Infos infos;
  ASSERT_NE(GetMembers(1, "NOSUCH", infos), 0);
  ASSERT_EQ(infos.count, 1);
  EXPECT_EQ(std::memcmp(infos.list, records.data(), sizeof(SymbolInfo)), 0);
  standin::AnswerMembers(1, "CHIP", {}, -7);
  Infos negative;
  ASSERT_NE(GetMembers(1, "CHIP", negative), 0);
  EXPECT_EQ(negative.list, nullptr);
  EXPECT_EQ(negative.count, -7);
}

TEST_F(GroupService, AnAnswerCanBeOrderedToFailAndEndsWithReset) {
  standin::AnswerGroups(1, "", std::vector<GroupInfo>(1), 1);
  standin::AnswerMembers(1, "CHIP", std::vector<SymbolInfo>(1), 1);
  standin::FailCall("VLGetSubGroup", 1);
  Groups failed;
  EXPECT_EQ(GetGroups(1, "", failed), 0);
  EXPECT_EQ(failed.list, nullptr);
  standin::Reset();
  Groups groups;
  ASSERT_NE(GetGroups(1, "", groups), 0);
  EXPECT_EQ(groups.count, 0);
  Infos infos;
  EXPECT_EQ(GetMembers(1, "CHIP", infos), 0);
}

} // namespace
