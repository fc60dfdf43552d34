#include "terminal/demo/Groups.h"

#include <cstdio>
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/demo/Table.h"

namespace demo {
namespace {

constexpr int kMostServiceType = 200; // the cloud groups are shown with the cloud lists
constexpr int kGroupCells = 20;
constexpr int kIdCells = 17;
constexpr int kMembersCells = 47;

int MemberCalls() {
  return standin::CountCalls("VLGetGroupSymbol");
}

// The names of the members, as many as fit into the line.
std::string MemberNames(CTQSymbolListMgr& manager, void* handle, int members) {
  std::string names;
  for (int i = 0; i < members && CellWidth(names) <= kMembersCells; ++i) {
    SymbolInfo member;
    if (manager.GetGroupSymbolInfo(handle, i, &member) != 0)
      names += (names.empty() ? "" : " ") + standin::FromAnsi(member.name);
  }
  return FittedList(names, ' ', kMembersCells);
}

// The groups of a tree view. A group with sub-groups is represented by these alone.
class Tree {
public:
  explicit Tree(CTQSymbolListMgr& manager) : manager_(manager) {}

  void PrintType(int type) {
    const int groups = manager_.GetGroupCount(type, nullptr);
    std::string shownType = std::to_string(type);
    for (int i = 0; i < groups; ++i) {
      GroupInfo info;
      void* handle = nullptr;
      if (manager_.GetGroupInfo(type, nullptr, i, &info) == 0 ||
          manager_.GetGroupHandle(type, info.szID, &handle, 0) == 0)
        continue;
      ++groups_;
      const int subGroups = manager_.GetGroupCount(type, handle);
      PrintGroup(shownType, "", info, subGroups > 0 ? nullptr : handle);
      shownType.clear();
      PrintSubGroups(type, handle, subGroups);
    }
  }

  // Asks every opened group for its members a second time.
  void CountAgain() {
    for (void* handle : opened_)
      manager_.GetGroupSymbolCount(handle);
  }

  int Groups() const { return groups_; }
  size_t Opened() const { return opened_.size(); }

private:
  void PrintSubGroups(int type, void* parent, int subGroups) {
    for (int i = 0; i < subGroups; ++i) {
      GroupInfo info;
      void* handle = nullptr;
      if (manager_.GetGroupInfo(type, parent, i, &info) == 0 ||
          manager_.GetGroupHandle(type, info.szID, &handle, 0) == 0)
        continue;
      ++groups_;
      PrintGroup("", "  ", info, handle);
    }
  }

  // With its members once it is opened.
  void PrintGroup(const std::string& type, const char* indent, const GroupInfo& info,
                  void* opened) {
    const std::string name = Fitted(indent + standin::FromAnsi(info.szName), kGroupCells - 1);
    const std::string id = standin::FromAnsi(info.szID);
    std::printf("  %s  %s", PaddedLeft(type, 4).c_str(), Padded(name, kGroupCells).c_str());
    if (!opened) {
      std::printf("%s\n", id.c_str());
      return;
    }
    const int members = manager_.GetGroupSymbolCount(opened);
    const std::string names = MemberNames(manager_, opened, members);
    std::printf("%s%5d%s%s\n", Padded(id, kIdCells).c_str(), members, names.empty() ? "" : "  ",
                names.c_str());
    opened_.push_back(opened);
  }

  CTQSymbolListMgr& manager_;
  int groups_ = 0;
  std::vector<void*> opened_;
};

} // namespace

void ShowGroups(CTQSymbolListMgr& manager) {
  std::printf("\nGroups\n");
  std::vector<int> types;
  for (int type = 1; type <= kMostServiceType; ++type)
    if (manager.GetGroupCount(type, nullptr) > 0)
      types.push_back(type);
  if (types.empty()) {
    std::printf("  none in this market\n");
    return;
  }
  const int atStart = MemberCalls();
  std::printf("  loaded at the start: %d calls for the tree, %d for members\n\n",
              standin::CountCalls("VLGetSubGroup"), atStart);
  std::printf("  type  %s%smembers\n", Padded("group", kGroupCells).c_str(),
              Padded("id", kIdCells - 2).c_str());
  Tree tree(manager);
  for (const int type : types)
    tree.PrintType(type);
  const int opened = MemberCalls();
  tree.CountAgain();
  const int again = MemberCalls() - opened;
  std::printf(
      "\n  %d groups, %zu of them opened: %d calls for members; counted again: %d calls%s\n",
      tree.Groups(), tree.Opened(), opened - atStart, again, again > 0 ? " (empty groups)" : "");
}

} // namespace demo
