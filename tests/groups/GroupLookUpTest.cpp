// Look-ups by id against plain scans of the tree, at random: ids occur often, in either letter
// case, on both levels.
#include <optional>
#include <random>

#include "groups/GroupPushes.h"
#include "tests/groups/GroupRecords.h"

namespace {

using groups::Answer;
using groups::Record;
using groups::Set;

bool SameNoCase(const std::string& left, const std::string& right) {
  return CString(left.c_str()).CompareNoCase(right.c_str()) == 0;
}

// A place in the scanned tree; sub is -1 for the group itself.
struct Place {
  int group = -1;
  int sub = -1;
};

class GroupLookUpTest : public StandInTest {
protected:
  GroupLookUpTest() : manager(1) {}

  std::string AnyId(std::size_t different) {
    std::string id = "g" + std::to_string(random() % different);
    if (random() % 2 == 0)
      id[0] = 'G';
    return id;
  }

  void LoadRandomTree(std::size_t size, std::size_t different) {
    std::vector<GroupInfo> top;
    std::vector<std::string> asked;
    for (std::size_t i = 0; i < size; ++i)
      top.push_back(Record(1, AnyId(different), "n" + std::to_string(i), random() % 2 == 0));
    Answer(1, "", top);
    for (const GroupInfo& group : top) {
      std::vector<GroupInfo> subs;
      for (std::size_t n = random() % 30; n > 0; --n)
        subs.push_back(Record(1, AnyId(different), "s" + std::to_string(random() % 1000)));
      Answer(1, group.szID, subs);
    }
    ASSERT_EQ(manager.Load(), 1);
  }

  template <typename Wanted> std::optional<Place> Scan(bool alsoTop, bool alsoSubs, Wanted wanted) {
    tq::GroupLevel& top = manager.Groups();
    for (int group = 0; group < top.Count(); ++group) {
      if (alsoTop && wanted(std::string(top.InfoAt(group).szID)))
        return Place{group, -1};
      for (int sub = 0; alsoSubs && sub < top.SubCountAt(group); ++sub)
        if (wanted(std::string(top.SubsAt(group)->InfoAt(sub).szID)))
          return Place{group, sub};
    }
    return std::nullopt;
  }

  CGroupList* ListAt(const std::optional<Place>& place) {
    if (!place)
      return nullptr;
    CGroupList* const group = manager.GetAt(place->group);
    return place->sub < 0 ? group : group->GetSub(place->sub);
  }

  void CheckEveryLookUp(const std::string& id) {
    const auto noCase = [&](const std::string& other) { return SameNoCase(id, other); };
    const auto exact = [&](const std::string& other) { return id == other; };
    ASSERT_EQ(manager.FindAnywhere(id), ListAt(Scan(true, true, noCase))) << id;
    ASSERT_EQ(manager.FindSub(id), ListAt(Scan(false, true, noCase))) << id;
    ASSERT_EQ(manager.Find(id.c_str()), ListAt(Scan(true, false, noCase))) << id;
    CGroupList* const named = ListAt(Scan(false, true, exact));
    const GroupInfo* const info = manager.FindSubExactly(id);
    ASSERT_EQ(info, named == nullptr ? nullptr : &named->GetInfo()) << id;
  }

  void PushAtRandom(std::size_t different) {
    constexpr tq::GroupPush pushes[] = {
        tq::AddGroups,    tq::UpdateGroups,    tq::UpdateGroupNames,    tq::RemoveGroups,
        tq::AddSubGroups, tq::UpdateSubGroups, tq::UpdateSubGroupNames, tq::RemoveSubGroups};
    std::vector<CGroupSet> sets;
    for (std::size_t n = 1 + random() % 3; n > 0; --n) {
      sets.push_back(Set(1, AnyId(different).c_str(), "pushed"));
      for (std::size_t k = random() % 4; k > 0; --k)
        sets.back().subGroups.emplace_back(AnyId(different).c_str(), "sub");
    }
    tq::GroupSelection selection;
    for (const CGroupSet& set : sets)
      selection.push_back(&set);
    pushes[random() % std::size(pushes)](manager, selection);
  }

  std::mt19937 random{11};
  CGroupMgr manager;
};

TEST_F(GroupLookUpTest, IndexAndScanAgreeOnRandomTrees) {
  for (int round = 0; round < 40; ++round) {
    const std::size_t different = 5 + random() % 300;
    LoadRandomTree(random() % 60, different);
    for (int i = 0; i < 60; ++i)
      CheckEveryLookUp(AnyId(different + 3));
  }
}

TEST_F(GroupLookUpTest, IndexAndScanAgreeBetweenPushes) {
  for (int round = 0; round < 20; ++round) {
    const std::size_t different = 20 + random() % 100;
    LoadRandomTree(40, different);
    for (int push = 0; push < 40; ++push) {
      PushAtRandom(different);
      for (int i = 0; i < 12; ++i)
        CheckEveryLookUp(AnyId(different));
    }
  }
}

TEST_F(GroupLookUpTest, AGroupIsFoundInFrontOfItsSubGroupsAndBehindThoseOfAnEarlierOne) {
  Answer(1, "", {Record(1, "a", "A", 1), Record(1, "x", "X", 1)});
  Answer(1, "a", {Record(1, "X", "sub of a")});
  Answer(1, "x", {Record(1, "x", "sub of x"), Record(1, "a", "sub too")});
  manager.Load();
  for (int i = 0; i < 10; ++i) {
    EXPECT_STREQ(manager.FindAnywhere("x")->GetInfo().szName, "sub of a");
    EXPECT_STREQ(manager.FindAnywhere("A")->GetInfo().szName, "A");
    EXPECT_STREQ(manager.FindSubExactly("x")->szName, "sub of x");
    EXPECT_STREQ(manager.FindSub("x")->GetInfo().szName, "sub of a");
  }
}

TEST_F(GroupLookUpTest, LevelsBelowTheSecondAreNeverSearched) {
  Answer(1, "", {Record(1, "a", "A", 1)});
  Answer(1, "a", {Record(1, "b", "B", 1)});
  Answer(1, "b", {Record(1, "c", "C")});
  manager.Load();
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(manager.FindAnywhere("c"), nullptr);
    EXPECT_EQ(manager.FindSub("c"), nullptr);
    EXPECT_EQ(manager.FindSubExactly("c"), nullptr);
    EXPECT_NE(manager.FindAnywhere("b"), nullptr);
  }
}

TEST_F(GroupLookUpTest, IdsLongerThanARecordsAreFoundNowhere) {
  const std::string id(16, 'a');
  Answer(1, "", {Record(1, id, "A", 1)});
  Answer(1, id, {Record(1, "b", "B")});
  manager.Load();
  EXPECT_NE(manager.FindAnywhere(id), nullptr);
  EXPECT_EQ(manager.FindAnywhere(id + "a"), nullptr);
  EXPECT_EQ(manager.FindSub(id + "a"), nullptr);
  EXPECT_EQ(manager.FindSubExactly(id + "a"), nullptr);
  EXPECT_EQ(manager.Find((id + "a").c_str()), nullptr);
}

TEST_F(GroupLookUpTest, ANameThatAHandleGotIsSeenByEveryLookUp) {
  Answer(1, "", {Record(1, "a", "A", 1)});
  Answer(1, "a", {Record(1, "b", "B")});
  manager.Load();
  CGroupList* const sub = manager.FindAnywhere("b");
  manager.GetAt(0)->SetName("top");
  sub->SetName("sub");
  EXPECT_EQ(groups::Shape(manager.Groups()), "a/top(b/sub)");
  EXPECT_STREQ(manager.FindSubExactly("b")->szName, "sub");
  EXPECT_EQ(manager.FindAnywhere("b"), sub);
}

TEST_F(GroupLookUpTest, HandlesSurviveWhatHappensToOtherGroups) {
  std::vector<GroupInfo> top;
  for (int i = 0; i < 100; ++i)
    top.push_back(Record(1, "g" + std::to_string(i), "", 1));
  Answer(1, "", top);
  Answer(1, "g50", {Record(1, "s1", "S1"), Record(1, "s2", "S2"), Record(1, "s3", "S3")});
  manager.Load();
  CGroupList* const sub = manager.FindAnywhere("s2"); // asked for before its group
  CGroupList* const group = manager.Find("g50");
  const std::vector<CGroupSet> sets = {Set(1, "g1", ""), Set(1, "g2", ""), Set(1, "g99", "")};
  tq::RemoveGroups(manager, {&sets[0], &sets[1]});
  tq::UpdateGroups(manager, {&sets[2]});
  const CGroupSet added = Set(1, "new", "New");
  tq::AddGroups(manager, {&added});
  const CGroupSet subs = Set(1, "g50", "", {{"s1", ""}});
  tq::RemoveSubGroups(manager, {&subs});
  const CGroupSet more = Set(1, "g50", "", {{"s4", ""}, {"s5", ""}});
  tq::AddSubGroups(manager, {&more});
  EXPECT_EQ(manager.Find("g50"), group);
  EXPECT_EQ(group->GetSubCount(), 4);
  EXPECT_EQ(group->FindSub("s2"), sub);
  EXPECT_EQ(manager.FindAnywhere("s2"), sub);
  EXPECT_STREQ(sub->GetInfo().szName, "S2");
}

} // namespace
