// Groups while the service fails or returns nonsense.
#include <cstring>

#include "tests/interface/GroupsTest.h"

namespace {

class GroupsFailureTest : public GroupsTest {
protected:
  // All answers of the manager about the sample groups.
  std::string Everything() {
    std::string all;
    for (const int type : {1, 2, 7, 201}) {
      all += std::to_string(type) + ":" + Shape(type) + ";";
      for (const char* id :
           {"TSE", "CHIP", "CEM", "OTC", "WAFER", "ETF", "CTW", "AI", "a2", "PICK"})
        if (void* const handle = Handle(type, id))
          all += NameOf(handle) + "=" + MembersOf(handle) + ";";
    }
    return all;
  }
};

// Each call of a full load fails in turn: only the group or type that it was for is empty, nothing
// leaks, and the next load is complete.
TEST_F(GroupsFailureTest, EveryCallOfAFullLoadFailingOnceIsSurvived) {
  ASSERT_EQ(manager.LoadGroupList(), 1);
  std::vector<std::string> calls;
  for (const standin::Call& call : standin::Calls())
    calls.push_back(call.arguments);
  ASSERT_EQ(calls.size(), 28u);
  const std::string whole = Everything();
  for (size_t n = 1; n <= calls.size(); ++n) {
    SCOPED_TRACE("call " + std::to_string(n) + " for " + calls[n - 1]);
    standin::FailCall("VLGetSubGroup", static_cast<int>(n));
    EXPECT_EQ(manager.LoadGroupList(), 1);
    EXPECT_EQ(standin::OutstandingArrays(), 0);
    for (int type = 1; type <= 21; ++type)
      EXPECT_EQ(manager.GetGroupIdx(type), type - 1);
    EXPECT_EQ(manager.GetGroupIdx(201), 22);
    const std::string type = calls[n - 1].substr(0, calls[n - 1].find(','));
    const std::string parent = calls[n - 1].substr(type.size() + 1);
    if (parent.empty())
      EXPECT_EQ(manager.GetGroupCount(std::stoi(type), nullptr), 0);
    else
      EXPECT_EQ(manager.GetGroupCounts(std::stoi(type), parent.c_str()), 0);
    if (type == "1" && parent == "TSE") {
      EXPECT_EQ(Shape(1), "TSE OTC(WAFER) ETF");
    }
    standin::FailCall("VLGetSubGroup", 0);
    EXPECT_EQ(manager.LoadGroupList(), 1);
    EXPECT_EQ(Everything(), whole);
  }
}

TEST_F(GroupsFailureTest, EveryFetchOfMembersFailingOnceIsAskedAgain) {
  manager.LoadGroupList();
  const std::string whole = Everything();
  for (const char* id : {"CHIP", "CEM", "WAFER", "ETF"}) {
    manager.LoadGroupList(1);
    standin::FailCall("VLGetGroupSymbol", 1);
    EXPECT_EQ(manager.GetGroupSymbolCount(Handle(1, id)), 0);
    EXPECT_GT(manager.GetGroupSymbolCount(Handle(1, id)), 0);
  }
  manager.LoadGroupList();
  EXPECT_EQ(Everything(), whole);
}

TEST_F(GroupsFailureTest, AServiceThatIsDownLeavesEmptyTypesThatCanBePushedTo) {
  standin::FailAlways("VLGetSubGroup");
  EXPECT_EQ(manager.LoadGroupList(), 1);
  EXPECT_EQ(Shape(1), "");
  EXPECT_EQ(manager.AddGroup({Set(1, "new", "New")}), 1);
  EXPECT_EQ(Shape(1), "new");
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Shape(1), "");
}

TEST_F(GroupsFailureTest, CountsThatLieAndTextsWithoutAnEnd) {
  GroupInfo raw;
  std::memset(&raw, 'z', sizeof(raw));
  raw.nType = 1;
  standin::AnswerGroups(1, "", {raw}, 1);
  standin::AnswerGroups(2, "", {}, 5);
  standin::AnswerGroups(7, "", {raw}, -3);
  EXPECT_EQ(manager.LoadGroupList(), 1);
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupInfo(1, nullptr, 0, &info), 1);
  EXPECT_EQ(std::string(info.szID), std::string(16, 'z'));
  EXPECT_EQ(std::string(info.szName), std::string(48, 'z'));
  EXPECT_NE(Handle(1, std::string(16, 'Z').c_str()), nullptr);
  EXPECT_EQ(manager.GetGroupCount(2, nullptr), 0);
  EXPECT_EQ(manager.GetGroupCount(7, nullptr), 0);
}

TEST_F(GroupsFailureTest, AGroupThatNamesItselfAsItsSubGroup) {
  GroupInfo self = {};
  self.nType = 1;
  std::strcpy(self.szID, "self");
  self.bHasSubGroup = 1;
  standin::AnswerGroups(1, "", {self}, 1);
  standin::AnswerGroups(1, "self", {self}, 1);
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Shape(1), "self(self)");
  EXPECT_EQ(Asked(), 2);
}

TEST_F(GroupsFailureTest, AHundredThousandGroups) {
  std::vector<GroupInfo> records;
  for (int i = 0; i < 100'000; ++i) {
    GroupInfo info = {};
    info.nType = 1;
    std::snprintf(info.szID, sizeof(info.szID), "g%d", i);
    records.push_back(info);
  }
  standin::AnswerGroups(1, "", records, 100'000);
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(manager.GetGroupCount(1, nullptr), 100'000);
  std::vector<CGroupSet> sets;
  for (int i = 0; i < 100'000; i += 2)
    sets.push_back(Set(1, records[static_cast<size_t>(i)].szID, "pushed"));
  EXPECT_EQ(manager.UpdateGroup(sets), 1);
  EXPECT_EQ(NameOf(Handle(1, "G99998")), "pushed");
  EXPECT_EQ(NameOf(Handle(1, "G99999")), "");
  EXPECT_EQ(manager.RemoveGroup(sets), 1);
  EXPECT_EQ(manager.GetGroupCount(1, nullptr), 50'000);
  EXPECT_EQ(Handle(1, "g99998"), nullptr);
}

TEST_F(GroupsFailureTest, MemberRecordsWithoutAnEndStayWithinTheirField) {
  SymbolInfo raw;
  std::memset(&raw, 'z', sizeof(raw));
  standin::AnswerMembers(1, "ETF", {raw}, 1);
  manager.LoadGroupList(1);
  EXPECT_EQ(MembersOf(Handle(1, "ETF")), std::string(20, 'z'));
}

TEST_F(GroupsFailureTest, FetchingMembersIsLogged) {
  StartWithoutTables();
  const size_t lines = standin::LogLines().size();
  MembersOf(Handle(1, "CHIP"));
  ASSERT_EQ(standin::LogLines().size(), lines + 1);
  EXPECT_EQ(standin::LogLines().back().level, 64);
  EXPECT_EQ(standin::LogLines().back().text,
            "CGroupList::Update2 GroupName=" + NameOf(Handle(1, "CHIP")) +
                ", Symbols=2330.TW,2454.TW");
}

} // namespace
