// One group: its lazily fetched members, its lines in the log, its sub-groups.
#include "groups/GroupList.h"

#include "platform/Log.h"
#include "tests/groups/GroupRecords.h"

namespace {

class GroupListTest : public StandInTest {
protected:
  GroupListTest() : list(groups::Record(7, "semi", "Semi")) {
    groups::AnswerMembers(7, "semi", {"2330.TW", "2454.TW"});
    tq::OpenLog();
  }
  int Fetches() { return standin::CountCalls("VLGetGroupSymbol"); }
  std::string LastLine() {
    return standin::LogLines().empty() ? "" : standin::LogLines().back().text;
  }

  CGroupList list;
};

TEST_F(GroupListTest, MembersAreFetchedWithTypeIdAndFlagOne) {
  list.GetCount();
  ASSERT_EQ(Fetches(), 1);
  EXPECT_EQ(standin::Calls().back().arguments, "7,semi,1");
}

TEST_F(GroupListTest, EachQuestionFetchesFirstAndOnlyOnce) {
  EXPECT_EQ(Fetches(), 0);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,2454.TW");
  SymbolInfo record = {};
  EXPECT_TRUE(list.GetAt(1, &record));
  EXPECT_STREQ(record.id, "2454.TW");
  EXPECT_FALSE(list.GetAt(2, &record));
  EXPECT_EQ(Fetches(), 1);
  CGroupList byAt(groups::Record(7, "semi", "Semi"));
  EXPECT_TRUE(byAt.GetAt(0, &record));
  CGroupList byIds(groups::Record(7, "semi", "Semi"));
  EXPECT_STREQ(byIds.GetIDs(), "2330.TW,2454.TW");
  EXPECT_EQ(Fetches(), 3);
}

TEST_F(GroupListTest, MembersTakenOverAreNotResolvedAgain) {
  list.GetCount();
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 0);
}

TEST_F(GroupListTest, AFailureIsAskedAgain) {
  standin::FailCall("VLGetGroupSymbol", 1);
  EXPECT_EQ(list.LoadSymbols(), 0);
  standin::FailCall("VLGetGroupSymbol", 1);
  EXPECT_EQ(list.GetCount(), 0);
  SymbolInfo record = {};
  standin::FailCall("VLGetGroupSymbol", 1);
  EXPECT_FALSE(list.GetAt(0, &record));
  standin::FailCall("VLGetGroupSymbol", 1);
  EXPECT_STREQ(list.GetIDs(), "");
  EXPECT_TRUE(standin::LogLines().empty());
  EXPECT_EQ(list.LoadSymbols(), 1);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_EQ(Fetches(), 5);
}

TEST_F(GroupListTest, NoMembersIsAskedAgain) {
  groups::AnswerMembers(7, "semi", {});
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(list.LoadSymbols(), 1);
  EXPECT_EQ(Fetches(), 2);
}

TEST_F(GroupListTest, AListThatHoldsIdsFetchesNothing) {
  list.Update1("2317.TW");
  EXPECT_EQ(list.LoadSymbols(), 1);
  EXPECT_EQ(list.GetCount(), 1);
  EXPECT_STREQ(list.GetIDs(), "2317.TW");
  EXPECT_EQ(Fetches(), 0);
}

TEST_F(GroupListTest, CountsThatLieAreHeldToTheArray) {
  for (const int count : {-1, -2000000000, 5}) {
    standin::AnswerMembers(7, "semi", {}, count);
    EXPECT_EQ(list.GetCount(), 0);
  }
  standin::AnswerMembers(7, "semi", {groups::Member("2330.TW")}, -1);
  EXPECT_EQ(list.GetCount(), 0);
  EXPECT_EQ(standin::OutstandingArrays(), 0);
}

TEST_F(GroupListTest, FetchingIsLogged) {
  list.GetCount();
  ASSERT_EQ(standin::LogLines().size(), 1u);
  EXPECT_EQ(standin::LogLines()[0].level, 64);
  EXPECT_EQ(LastLine(), "CGroupList::Update2 GroupName=Semi, Symbols=2330.TW,2454.TW");
  list.GetCount();
  EXPECT_EQ(standin::LogLines().size(), 1u);
}

TEST_F(GroupListTest, Update1IsLoggedWithBlanks) {
  EXPECT_EQ(list.Update1("2317.TW"), 1);
  EXPECT_EQ(LastLine(), "CGroupList::Update1 GroupName = Semi, Symbols = 2317.TW");
  EXPECT_EQ(standin::LogLines().back().level, 64);
}

TEST_F(GroupListTest, Update1WithTheSameIdsChangesNothingAndIsLogged) {
  list.Update1("2317.TW");
  EXPECT_EQ(list.Update1("2317.TW"), 0);
  EXPECT_EQ(standin::LogLines().size(), 2u);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
}

TEST_F(GroupListTest, Update3ResolvesTheIdsAgainAndIsLogged) {
  list.GetCount();
  EXPECT_EQ(list.Update3(), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(standin::CountCalls("VLGetGroupSymbol"), 1);
  EXPECT_EQ(LastLine(), "CGroupList::Update3 GroupName=Semi, Symbols=2330.TW,2454.TW");
  EXPECT_EQ(standin::LogLines().back().level, 64);
}

// Writing a line fetches no members.
TEST_F(GroupListTest, Update3OfAListWithoutIdsAsksNothing) {
  EXPECT_EQ(list.Update3(), 1);
  EXPECT_EQ(LastLine(), "CGroupList::Update3 GroupName=Semi, Symbols=");
  EXPECT_EQ(Fetches(), 0);
}

TEST_F(GroupListTest, UserTextIsNoFormat) {
  CGroupList percent(groups::Record(7, "p", "%s%n"));
  percent.Update1("%d.TW");
  EXPECT_EQ(LastLine(), "CGroupList::Update1 GroupName = %s%n, Symbols = %d.TW");
}

TEST_F(GroupListTest, CallsThroughTheBaseReachTheGroup) {
  CIDList& base = list;
  EXPECT_EQ(base.GetCount(), 2);
  base.Update1("2317.TW");
  EXPECT_EQ(LastLine(), "CGroupList::Update1 GroupName = Semi, Symbols = 2317.TW");
  EXPECT_STREQ(base.GetIDs(), "2317.TW");
}

TEST_F(GroupListTest, UnterminatedTextsEndWithTheirField) {
  GroupInfo raw;
  std::memset(&raw, 'z', sizeof(raw));
  const CGroupList group(raw);
  EXPECT_EQ(std::string(group.GetInfo().szID), std::string(16, 'z'));
  EXPECT_EQ(std::string(group.GetInfo().szName), std::string(48, 'z'));
}

TEST_F(GroupListTest, NameIsCutAtAWholeCharacter) {
  const std::string name = "x" + std::string(60, '\xA4');
  list.SetName(name.c_str());
  EXPECT_EQ(std::string(list.GetInfo().szName), name.substr(0, 47));
  list.SetName("short");
  EXPECT_STREQ(list.GetInfo().szName, "short");
  list.SetName(nullptr);
  EXPECT_STREQ(list.GetInfo().szName, "");
}

TEST_F(GroupListTest, SubGroupsByPositionAndId) {
  groups::Answer(1, "", {groups::Record(1, "top", "Top", 1)});
  groups::Answer(1, "top", {groups::Record(1, "a", "A"), groups::Record(1, "b", "B")});
  CGroupMgr manager(1);
  ASSERT_EQ(manager.Load(), 1);
  CGroupList* const top = manager.Find("TOP");
  ASSERT_NE(top, nullptr);
  ASSERT_EQ(top->GetSubCount(), 2);
  EXPECT_STREQ(top->GetSub(1)->GetInfo().szID, "b");
  EXPECT_EQ(top->FindSub("B"), top->GetSub(1));
  EXPECT_EQ(top->FindSub("c"), nullptr);
  EXPECT_EQ(top->FindSub(nullptr), nullptr);
  EXPECT_EQ(top->GetSub(-1), nullptr);
  EXPECT_EQ(top->GetSub(2), nullptr);
  EXPECT_EQ(top->GetSub(0)->GetSubCount(), 0);
  EXPECT_EQ(top->GetSub(0)->GetSub(0), nullptr);
  EXPECT_EQ(top->GetSub(0)->FindSub("a"), nullptr);
  EXPECT_EQ(manager.GetAt(0), top);
  EXPECT_EQ(manager.GetAt(1), nullptr);
  EXPECT_EQ(manager.GetAt(-1), nullptr);
}

} // namespace
