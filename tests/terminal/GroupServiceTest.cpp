// The stand-in VLProxy: groups. Numbers of packed records are compared inside EXPECT_TRUE because
// the other macros would bind references to them, which are misaligned.
#include <cstring>

#include "platform/services/tqCommon.h"
#include "tests/terminal/GroupServiceTest.h"

namespace {

struct TreeRequest {
  int type;
  const char* parent;
  const char* answer;
};

class GroupServiceTree : public GroupService, public testing::WithParamInterface<TreeRequest> {};

TEST_P(GroupServiceTree, ListsTheGroupsUnderOneInTheMarketsOrder) {
  Groups groups;
  ASSERT_NE(GetGroups(GetParam().type, GetParam().parent, groups), 0);
  EXPECT_EQ(GroupIds(groups), GetParam().answer);
  EXPECT_EQ(groups.list == nullptr, groups.count == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Parents, GroupServiceTree,
    testing::Values(TreeRequest{1, "", "TSE+ OTC+ ETF"}, TreeRequest{1, "TSE", "CHIP CEM"},
                    TreeRequest{1, "tse", "CHIP CEM"}, TreeRequest{1, "OTC", "WAFER"},
                    TreeRequest{1, "ETF", ""}, TreeRequest{1, "CHIP", ""},
                    TreeRequest{1, "NOSUCH", ""}, TreeRequest{1, "CTW", ""},
                    TreeRequest{1, "TSE0123456789ABCDEFGHI", ""}, TreeRequest{2, "", "CTW+"},
                    TreeRequest{2, "ctw", "AI a2"}, TreeRequest{3, "", ""},
                    TreeRequest{201, "", "VORNG01+ PICK"},
                    TreeRequest{201, "VORNG01", "VORNG0101 VORNG0102 VORNG0103"},
                    TreeRequest{0, "", ""}, TreeRequest{202, "", ""}, TreeRequest{-1, "", ""},
                    // A double-byte character whose second byte is a letter of an id.
                    TreeRequest{1, "\xB3TSE", ""}));

TEST_F(GroupService, FillsEveryFieldOfARecord) {
  Groups groups;
  ASSERT_NE(GetGroups(1, "TSE", groups), 0);
  ASSERT_EQ(groups.count, 2);
  GroupInfo expected{};
  expected.nType = 1;
  std::strcpy(expected.szID, "CHIP");
  std::strcpy(expected.szName, standin::ToAnsi(IsTraditionChinese() ? "半導體" : "半导体").c_str());
  EXPECT_EQ(std::memcmp(&groups.list[0], &expected, sizeof expected), 0);
}

TEST_F(GroupService, NamesFollowTheInterfaceLanguage) {
  for (const bool traditional : {true, false}) {
    standin::SetTraditional(traditional);
    Groups groups;
    ASSERT_NE(GetGroups(1, "", groups), 0);
    EXPECT_EQ(groups.list[1].szName, standin::ToAnsi(traditional ? "上櫃" : "上柜"));
  }
}

TEST_F(GroupService, TextsAreCutToTheirFieldsAtAWholeCharacter) {
  standin::Market market;
  std::string name = "A";
  for (int i = 0; i < 24; ++i)
    name += "許";
  market.groups = {{1, "", "0123456789ABCDEFG", name, name, {}},
                   {1, "0123456789ABCDEFG", "SUB", "", "", {}}};
  standin::SetMarket(market);
  Groups groups;
  ASSERT_NE(GetGroups(1, "", groups), 0);
  ASSERT_EQ(groups.count, 1);
  EXPECT_STREQ(groups.list[0].szID, "0123456789ABCDEF");
  EXPECT_EQ(std::strlen(groups.list[0].szName), 47u);
  EXPECT_TRUE(groups.list[0].bHasSubGroup == 1);
  Groups subs;
  ASSERT_NE(GetGroups(1, groups.list[0].szID, subs), 0);
  EXPECT_EQ(GroupIds(subs), "SUB");
}

TEST_F(GroupService, GroupsOfATypeThatNoServiceHasAreNotServed) {
  standin::Market market;
  market.groups = {
      {0, "", "A", "", "", {}}, {202, "", "B", "", "", {}}, {201, "", "C", "", "", {}}};
  standin::SetMarket(market);
  Groups groups;
  ASSERT_NE(GetGroups(201, "", groups), 0);
  EXPECT_EQ(GroupIds(groups), "C");
}

// Digits of a type must not be taken for letters of an id.
TEST_F(GroupService, TypesThatDifferByALettersCaseBitAreApart) {
  standin::Market market;
  market.groups = {{65, "", "A", "", "", {}}, {97, "", "B", "", "", {}}};
  standin::SetMarket(market);
  Groups groups;
  ASSERT_NE(GetGroups(97, "", groups), 0);
  EXPECT_EQ(GroupIds(groups), "B");
}

struct MemberRequest {
  int type;
  const char* group;
  const char* answer;
};

class GroupServiceMembers : public GroupService,
                            public testing::WithParamInterface<MemberRequest> {};

TEST_P(GroupServiceMembers, ListsThemInTheMarketsOrder) {
  Infos infos;
  ASSERT_NE(GetMembers(GetParam().type, GetParam().group, infos), 0);
  EXPECT_EQ(Ids(infos), GetParam().answer);
  EXPECT_EQ(infos.list == nullptr, infos.count == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Groups, GroupServiceMembers,
    testing::Values(MemberRequest{1, "CHIP", "2330.TW 2454.TW"},
                    MemberRequest{1, "chip", "2330.TW 2454.TW"}, MemberRequest{1, "TSE", ""},
                    MemberRequest{1, "ETF", "0050.TW"}, MemberRequest{2, "A2", "2881.TW"},
                    MemberRequest{201, "VORNG0102", ""}, MemberRequest{201, "PICK", "2317.TW"}));

class GroupServiceUnknown : public GroupService,
                            public testing::WithParamInterface<MemberRequest> {};

TEST_P(GroupServiceUnknown, HasNoMembersToAskFor) {
  Infos infos;
  EXPECT_EQ(GetMembers(GetParam().type, GetParam().group, infos), 0);
  EXPECT_EQ(infos.list, nullptr);
  EXPECT_EQ(infos.count, 0);
}

INSTANTIATE_TEST_SUITE_P(Groups, GroupServiceUnknown,
                         testing::Values(MemberRequest{1, "NOSUCH", ""}, MemberRequest{1, "", ""},
                                         MemberRequest{2, "CHIP", ""}, MemberRequest{3, "CHIP", ""},
                                         MemberRequest{0, "CHIP", ""},
                                         MemberRequest{1, "CHIP ", ""},
                                         MemberRequest{1, "CHIP5678901234567", ""}));

TEST_F(GroupService, MembersAreTheRecordsOfTheSymbols) {
  Infos infos;
  ASSERT_NE(GetMembers(1, "CEM", infos), 0);
  ASSERT_EQ(infos.count, 1);
  SymbolInfo record;
  ASSERT_NE(VLGetSymbolInfo("1101.TW", &record), 0);
  EXPECT_EQ(std::memcmp(&infos.list[0], &record, sizeof record), 0);
}

TEST_F(GroupService, UnknownMembersAreLeftOutAndThoseThatStandTwiceComeTwice) {
  standin::Market market = SmallMarket();
  market.groups = {{1, "", "A", "", "", {"NOSUCH.TW", "2317.tw", "", "2330.TW", "2317.TW", "2330"}},
                   {1, "", "B", "", "", {"NOSUCH.TW"}}};
  standin::SetMarket(market);
  Infos infos;
  ASSERT_NE(GetMembers(1, "A", infos), 0);
  EXPECT_EQ(Ids(infos), "2317.TW 2330.TW 2317.TW");
  Infos none;
  EXPECT_NE(GetMembers(1, "B", none), 0);
  EXPECT_EQ(none.list, nullptr);
}

TEST_F(GroupService, OfTwoGroupsWithOneIdTheFirstHasTheMembers) {
  standin::Market market = SmallMarket();
  market.groups = {{1, "", "A", "", "", {}},
                   {1, "", "B", "", "", {}},
                   {1, "A", "X", "", "", {"2330.TW"}},
                   {1, "B", "x", "", "", {"2317.TW"}}};
  standin::SetMarket(market);
  Infos infos;
  ASSERT_NE(GetMembers(1, "x", infos), 0);
  EXPECT_EQ(Ids(infos), "2330.TW");
}

TEST_F(GroupService, ANewMarketReplacesTheTree) {
  standin::SetMarket(SmallMarket());
  Groups groups;
  EXPECT_NE(GetGroups(1, "", groups), 0);
  EXPECT_EQ(groups.list, nullptr);
  Infos infos;
  EXPECT_EQ(GetMembers(1, "CHIP", infos), 0);
}

TEST_F(GroupService, MissingTextsAndOutputsAreFailures) {
  Groups groups;
  EXPECT_EQ(GetGroups(1, nullptr, groups), 0);
  EXPECT_EQ(groups.count, 0);
  EXPECT_EQ(VLGetSubGroup(1, "", nullptr, &groups.count), 0);
  EXPECT_EQ(VLGetSubGroup(1, "", &groups.list, nullptr), 0);
  EXPECT_EQ(groups.list, nullptr);
  Infos infos;
  EXPECT_EQ(GetMembers(1, nullptr, infos), 0);
  EXPECT_EQ(infos.count, 0);
  EXPECT_EQ(VLGetGroupSymbol(1, "CHIP", nullptr, &infos.count, 1), 0);
  EXPECT_EQ(VLGetGroupSymbol(1, "CHIP", &infos.list, nullptr, 1), 0);
  EXPECT_EQ(infos.list, nullptr);
}

TEST_F(GroupService, CallsAreRecorded) {
  Groups groups;
  GetGroups(1, "TSE", groups);
  Infos infos;
  GetMembers(1, "CHIP", infos);
  ASSERT_EQ(standin::Calls().size(), 2u);
  EXPECT_EQ(standin::Calls()[0].operation, "VLGetSubGroup");
  EXPECT_EQ(standin::Calls()[0].arguments, "1,TSE");
  EXPECT_EQ(standin::Calls()[1].operation, "VLGetGroupSymbol");
  EXPECT_EQ(standin::Calls()[1].arguments, "1,CHIP,1");
}

} // namespace
