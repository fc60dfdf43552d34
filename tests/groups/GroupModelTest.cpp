// Random operations on groups, each compared with the model: loading, adding and removing types,
// pushes, and all queries by id and by handle.
#include <algorithm>

#include "manager/TQSymbolListMgr.h"
#include "platform/services/tqCommon.h"
#include "tests/groups/RandomGroups.h"

namespace {

using groupmodel::Group;

int Int(size_t size) {
  return static_cast<int>(size);
}

class GroupModelTest : public RandomGroups {
protected:
  // Each language takes half of the steps, others than the other one.
  GroupModelTest() { random_.seed(IsTraditionChinese() != 0 ? 31 : 32); }

  void ChangeTypes();
  void Push();
  void AskById();
  void AskForHandle();
  void AskByHandle();
  void CheckEverything();
  void ExpectInfo(const GroupInfo& info, const Group& group);
  Group* AnyKnownHandle();

  CTQSymbolListMgr manager;
};

void GroupModelTest::ChangeTypes() {
  const int type = Type();
  switch (Random(12)) {
  case 0:
    ChangeService();
    break;
  case 1:
    ASSERT_EQ(manager.AddNewGroup(type), model.Add(type));
    break;
  case 2:
  case 3:
    ASSERT_EQ(manager.RemoveGroupList(type), model.Remove(type));
    break;
  case 4:
    if (Random(20) == 0) {
      manager.ClearGroupList();
      model.Clear();
    }
    break;
  case 5:
    ASSERT_EQ(manager.UpdateGroup(type, "unused"), model.Update(type));
    break;
  case 6:
    ASSERT_EQ(manager.UpdateGroupType(type), model.Update(type));
    break;
  case 7:
    ASSERT_EQ(manager.AddGroupList(type, true), model.Load(type));
    break;
  case 8:
    ASSERT_EQ(manager.AddGroupList(type, false), model.Add(type));
    break;
  case 9:
    ASSERT_EQ(manager.LoadGroupList(), model.LoadAll());
    break;
  default:
    ASSERT_EQ(manager.LoadGroupList(type), model.Load(type));
  }
}

void GroupModelTest::Push() {
  const std::vector<CGroupSet> sets = Sets();
  switch (Random(8)) {
  case 0:
    ASSERT_EQ(manager.AddGroup(sets), model.AddGroup(sets));
    break;
  case 1:
    ASSERT_EQ(manager.UpdateGroup(sets), model.UpdateGroup(sets));
    break;
  case 2:
    ASSERT_EQ(manager.UpdateGroupName(sets), model.UpdateGroupName(sets));
    break;
  case 3:
    ASSERT_EQ(manager.RemoveGroup(sets), model.RemoveGroup(sets));
    break;
  case 4:
    ASSERT_EQ(manager.AddSubGroup(sets), model.AddSubGroup(sets));
    break;
  case 5:
    ASSERT_EQ(manager.UpdateSubGroup(sets), model.UpdateSubGroup(sets));
    break;
  case 6:
    ASSERT_EQ(manager.UpdateSubGroupName(sets), model.UpdateSubGroupName(sets));
    break;
  default:
    ASSERT_EQ(manager.RemoveSubGroup(sets), model.RemoveSubGroup(sets));
  }
}

void GroupModelTest::ExpectInfo(const GroupInfo& info, const Group& group) {
  ASSERT_EQ(static_cast<int>(info.nType), group.type);
  ASSERT_EQ(std::string(info.szID), group.id);
  ASSERT_EQ(std::string(info.szName), group.name);
  ASSERT_EQ(static_cast<int>(info.bHasSubGroup), group.hasSub);
}

void GroupModelTest::AskById() {
  const int type = Type();
  const std::string id = Id();
  const std::string asked = Asked();
  const int cut = static_cast<int>(Random(2));
  const int index = Index();
  groupmodel::Manager* const loaded = model.Loaded(type);
  Group* const top = loaded == nullptr ? nullptr : groupmodel::FindId(loaded->groups, id);
  ASSERT_EQ(manager.GetGroupIdx(type), model.IndexOf(type));
  ASSERT_EQ(manager.GetGroupCounts(type, id.c_str()), top == nullptr ? 0 : Int(top->subs.size()));
  GroupInfo info = {};
  const bool there = top != nullptr && index >= 0 && static_cast<size_t>(index) < top->subs.size();
  ASSERT_EQ(manager.GetGroupInfos(type, id.c_str(), index, &info), there ? 1 : 0);
  if (there) {
    ExpectInfo(info, top->subs[static_cast<size_t>(index)]);
  }

  CString name = "x";
  const std::string key = cut != 0 ? groupmodel::AfterComma(asked) : asked;
  Group* const named = model.FindSub(type, key, true);
  ASSERT_EQ(manager.GetGroupName(type, asked.c_str(), name, cut), named == nullptr ? 0 : 1);
  ASSERT_EQ(std::string(name), named == nullptr ? "" : named->name);

  Group* const sub = model.FindSub(type, id, false);
  const std::string ids = sub == nullptr ? "" : model.Members(*sub);
  const auto commas = std::count(ids.begin(), ids.end(), ',');
  ASSERT_EQ(manager.GetGroupSymbolCount(type, id.c_str()), ids.empty() ? 0 : commas + 1);
  SymbolInfo record = {};
  ASSERT_EQ(manager.GetGroupSymbolInfo(type, id.c_str(), 0, &record), ids.empty() ? 0 : 1);
  ASSERT_EQ(std::string(record.id), ids.substr(0, ids.find(',')));

  const char* const symbol = Pick({"2330", "TW,6", "2317.TW", "", "tw"});
  Group* const searched =
      asked.empty() ? nullptr : model.FindHandle(type, groupmodel::AfterComma(asked));
  const bool searchable = (type == 2 || type == 7 || type == 8) && *symbol != '\0';
  const bool holds = searchable && searched != nullptr &&
                     model.Members(*searched).find(symbol) != std::string::npos;
  ASSERT_EQ(manager.FindSymoblInGroupList(type, asked.c_str(), symbol), holds ? 1 : 0);
}

void GroupModelTest::AskForHandle() {
  const int type = Type();
  const std::string asked = Asked();
  const int cut = static_cast<int>(Random(2));
  Group* const expected = model.FindHandle(type, cut != 0 ? groupmodel::AfterComma(asked) : asked);
  void* handle = &manager;
  ASSERT_EQ(manager.GetGroupHandle(type, asked.c_str(), &handle, cut), expected == nullptr ? 0 : 1);
  ASSERT_EQ(handle == nullptr, expected == nullptr);
  if (expected == nullptr)
    return;
  if (expected->handle != nullptr) {
    ASSERT_EQ(handle, expected->handle);
  }
  expected->handle = handle;
}

// A group that still exists and whose handle was given out.
Group* GroupModelTest::AnyKnownHandle() {
  if (model.managers.empty())
    return nullptr;
  auto& top = model.managers[Random(model.managers.size())].groups;
  if (top.empty())
    return nullptr;
  Group& group = top[Random(top.size())];
  if (Random(2) == 0 && !group.subs.empty()) {
    Group& sub = group.subs[Random(group.subs.size())];
    return sub.handle != nullptr ? &sub : nullptr;
  }
  return group.handle != nullptr ? &group : nullptr;
}

void GroupModelTest::AskByHandle() {
  Group* const group = AnyKnownHandle();
  if (group == nullptr)
    return;
  const int type = Type();
  const int index = Index();
  const bool loaded = model.IsLoaded(type);
  ASSERT_EQ(manager.GetGroupCount(type, group->handle), loaded ? Int(group->subs.size()) : 0);
  GroupInfo info = {};
  const bool there = loaded && index >= 0 && static_cast<size_t>(index) < group->subs.size();
  ASSERT_EQ(manager.GetGroupInfo(type, group->handle, index, &info), there ? 1 : 0);
  if (there) {
    ExpectInfo(info, group->subs[static_cast<size_t>(index)]);
  }
  CString name;
  ASSERT_EQ(manager.GetGroupName(type, group->handle, name), 1);
  ASSERT_EQ(std::string(name), group->name);
  CString ids = "x";
  const std::string members = model.AnyLoaded() ? model.Members(*group) : "";
  ASSERT_EQ(manager.GetGroupListIDs(group->handle, ids), model.AnyLoaded() ? 1 : 0);
  ASSERT_EQ(std::string(ids), members);
  const auto commas = std::count(members.begin(), members.end(), ',');
  ASSERT_EQ(manager.GetGroupSymbolCount(group->handle),
            model.Members(*group).empty() ? 0 : commas + 1);
}

void GroupModelTest::CheckEverything() {
  for (int type = 0; type <= 202; ++type) {
    groupmodel::Manager* const loaded = model.Loaded(type);
    const int count = loaded == nullptr ? 0 : Int(loaded->groups.size());
    ASSERT_EQ(manager.GetGroupIdx(type), model.IndexOf(type));
    ASSERT_EQ(manager.GetGroupCount(type, nullptr), count);
    ASSERT_EQ(manager.GetGroupCounts(type, nullptr), count);
    GroupInfo info = {};
    ASSERT_EQ(manager.GetGroupInfo(type, nullptr, count, &info), 0);
    for (int i = 0; i < count; ++i) {
      ASSERT_EQ(manager.GetGroupInfo(type, nullptr, i, &info), 1);
      ExpectInfo(info, loaded->groups[static_cast<size_t>(i)]);
      ASSERT_EQ(manager.GetGroupInfos(type, nullptr, i, &info), 1);
      ExpectInfo(info, loaded->groups[static_cast<size_t>(i)]);
    }
  }
}

TEST_F(GroupModelTest, RandomStepsAnswerAsTheModel) {
  constexpr int steps = 60'000;
  for (int step = 0; step < steps && !HasFatalFailure(); ++step) {
    SCOPED_TRACE(step);
    const size_t what = Random(1000);
    if (what < 15)
      ChangeTypes();
    else if (what < 300)
      Push();
    else if (what < 600)
      AskById();
    else if (what < 850)
      AskForHandle();
    else
      AskByHandle();
    if (step % 500 == 0)
      CheckEverything();
  }
}

} // namespace
