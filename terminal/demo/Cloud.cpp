#include "terminal/demo/Cloud.h"

#include <cstdio>

#include "terminal/StandIn.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Sample.h"
#include "terminal/demo/Steps.h"

namespace demo {
namespace {

constexpr int kCloudType = 201;

// The group for the list: the first sub-group among the market's cloud groups, or else the first
// cloud group.
std::string GroupForList() {
  std::string first;
  for (const standin::Group& group : standin::CurrentMarket().groups) {
    if (group.type != kCloudType)
      continue;
    if (!group.parent.empty())
      return group.id;
    if (first.empty())
      first = group.id;
  }
  return first;
}

void PrintGroup(CTQSymbolListMgr& manager, const char* id, const char* indent) {
  void* handle = nullptr;
  CString name;
  CString ids;
  if (manager.GetGroupHandle(kCloudType, id, &handle, 0) == 0 ||
      manager.GetGroupName(kCloudType, handle, name) == 0)
    return;
  const bool parent = manager.GetGroupCount(kCloudType, handle) > 0;
  if (!parent)
    manager.GetGroupListIDs(handle, ids);
  PrintListRow((std::string(indent) + id).c_str(), name,
               parent ? -1 : manager.GetGroupSymbolCount(handle), ids);
}

void PrintGroups(CTQSymbolListMgr& manager) {
  for (int i = 0; i < manager.GetGroupCount(kCloudType, nullptr); ++i) {
    GroupInfo info;
    void* handle = nullptr;
    if (manager.GetGroupInfo(kCloudType, nullptr, i, &info) == 0 ||
        manager.GetGroupHandle(kCloudType, info.szID, &handle, 0) == 0)
      continue;
    PrintGroup(manager, info.szID, "");
    for (int j = 0; j < manager.GetGroupCount(kCloudType, handle); ++j)
      if (GroupInfo sub; manager.GetGroupInfo(kCloudType, handle, j, &sub) != 0)
        PrintGroup(manager, sub.szID, "  ");
  }
}

bool ListHas(CTQSymbolListMgr& manager, const CString& id, const CString& symbols) {
  CString ids;
  return manager.GetSymbolListIDs(kCloudLists, id, ids, nullptr) != 0 && ids == symbols;
}

bool GroupHas(CTQSymbolListMgr& manager, const CString& id, const CString& symbols) {
  CString ids;
  void* handle = nullptr;
  return manager.GetGroupHandle(kCloudType, id, &handle, 0) != 0 &&
         manager.GetGroupListIDs(handle, ids) != 0 && ids == symbols;
}

void Push(CTQSymbolListMgr& manager, const CString& id, const std::string& ids, Steps& steps) {
  const CString symbols = standin::ToAnsi(ids).c_str();
  manager.SetCloudeList(id, InLanguage("雲端觀察", "云端观察"), symbols);
  steps.Step(std::string("SetCloudeList: ") + id.GetString() + ", " +
                 (ids.empty() ? "no symbols" : ids),
             ListHas(manager, id, symbols));
  manager.RefreshCloudeSymbol();
  steps.Step("RefreshCloudeSymbol", GroupForList().empty() || GroupHas(manager, id, symbols));
  PrintGroup(manager, id, "");
}

} // namespace

bool ShowCloud(CTQSymbolListMgr& manager, std::string& error) {
  std::printf("\nCloud groups and cloud lists\n");
  Steps steps;
  const std::string group = GroupForList();
  const CString id = group.empty() ? "CLOUD-LIST" : group.c_str();
  if (group.empty())
    steps.Note("no cloud groups in this market");
  PrintGroups(manager);
  Push(manager, id, SomeSymbols(0, 2), steps);
  Push(manager, id, SomeSymbols(1, 2), steps);
  steps.Note("and as a list of kind 8");
  PrintListRows(manager, kCloudLists, 0);
  error = steps.Error();
  return error.empty();
}

} // namespace demo
