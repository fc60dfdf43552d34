#include "bench/Groups.h"

#include <strings.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "bench/Heap.h"
#include "platform/services/VLProxy.h"
#include "terminal/StandIn.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalLoading = 2;
constexpr double kGoalFinding = 0.01; // a hundred times faster
constexpr int kSubGroups = 10;

// The types of a full load.
std::vector<int> Types() {
  std::vector<int> types;
  for (int type = 1; type <= 21; ++type)
    types.push_back(type);
  types.insert(types.end(), {101, 201});
  return types;
}

// `count` groups of one type, with or without sub-groups.
void AddGroups(standin::Market& market, int type, int count, int subGroups) {
  for (int i = 0; i < count; ++i) {
    const std::string id = "G" + std::to_string(100'000 + i);
    const std::string name = "group " + std::to_string(i);
    market.groups.push_back({type, "", id, name, name, {}});
    for (int k = 0; k < subGroups; ++k) {
      const std::string sub = id + "-" + std::to_string(k);
      market.groups.push_back({type, id, sub, name + "." + std::to_string(k), name, {}});
    }
  }
}

// The least that a load takes: receiving the service's records, level by level. Returns their
// number.
std::size_t ReceiveGroups(int type, const char* parent) {
  GroupInfo* records = nullptr;
  int count = 0;
  VLGetSubGroup(type, parent, &records, &count);
  auto received = static_cast<std::size_t>(count);
  for (int i = 0; i < count; ++i) {
    if (records[i].bHasSubGroup != 0)
      received += ReceiveGroups(records[i].nType, records[i].szID);
  }
  VLFree(records);
  return received;
}

std::size_t CountGroups(CTQSymbolListMgr& manager, int type) {
  const int top = manager.GetGroupCount(type, nullptr);
  auto counted = static_cast<std::size_t>(top);
  for (int i = 0; i < top; ++i) {
    GroupInfo info = {};
    manager.GetGroupInfo(type, nullptr, i, &info);
    counted += static_cast<std::size_t>(manager.GetGroupCounts(type, info.szID));
  }
  return counted;
}

void MeasureLoading(Report& report, const std::string& what, int groups, int subGroups,
                    std::size_t repetitions) {
  const std::vector<int> types = Types();
  standin::Market market;
  for (const int type : types)
    AddGroups(market, type, groups, subGroups);
  const std::size_t all = market.groups.size();
  standin::SetMarket(std::move(market));
  CTQSymbolListMgr manager;
  bool right = true;
  const auto library = [&] { return Computing([&] { right = manager.LoadGroupList() && right; }); };
  const auto peer = [&] {
    return Computing([&] {
      std::size_t received = 0;
      for (const int type : types)
        received += ReceiveGroups(type, "");
      right = received == all && right;
    });
  };
  report.Ratio(what, Compare(repetitions, library, peer), kGoalLoading);
  std::size_t loaded = 0;
  for (const int type : types)
    loaded += CountGroups(manager, type);
  if (!right || loaded != all)
    report.Wrong(what);
}

// The records of a type for a plain scan.
struct Tree {
  struct Node {
    GroupInfo info;
    std::vector<GroupInfo> subs;
  };
  std::vector<Node> groups;

  const GroupInfo* Find(const char* id) const {
    for (const Node& node : groups) {
      if (strcasecmp(node.info.szID, id) == 0)
        return &node.info;
      for (const GroupInfo& sub : node.subs) {
        if (strcasecmp(sub.szID, id) == 0)
          return &sub;
      }
    }
    return nullptr;
  }
};

std::vector<GroupInfo> Receive(int type, const char* parent) {
  GroupInfo* records = nullptr;
  int count = 0;
  VLGetSubGroup(type, parent, &records, &count);
  std::vector<GroupInfo> copy(records, records + count);
  VLFree(records);
  return copy;
}

Tree ReadTree(int type) {
  Tree tree;
  for (const GroupInfo& info : Receive(type, ""))
    tree.groups.push_back({info, Receive(type, info.szID)});
  return tree;
}

// Ids from all over the tree, some in lower case, and a few unknown ones.
std::vector<std::string> MakeIds(const Tree& tree, std::size_t count) {
  std::mt19937 random(40);
  std::vector<std::string> ids;
  for (std::size_t i = 0; i < count; ++i) {
    const Tree::Node& node = tree.groups[random() % tree.groups.size()];
    const std::size_t sub = random() % (node.subs.size() + 1);
    std::string id = sub < node.subs.size() ? node.subs[sub].szID : node.info.szID;
    if (i % 4 == 1)
      id[0] = 'g';
    if (i % 20 == 2)
      id[1] = '?';
    ids.push_back(id);
  }
  return ids;
}

class Finding {
public:
  Finding(Report& report, int groups) : report_(report) {
    standin::Market market;
    AddGroups(market, kType, groups, kSubGroups);
    standin::SetMarket(std::move(market));
    manager_.LoadGroupList(kType);
    tree_ = ReadTree(kType);
    ids_ = MakeIds(tree_, kQueries);
  }

  void Run(std::size_t repetitions) {
    std::size_t found = 0;
    std::size_t scanned = 0;
    const auto library = [&] { return Computing([&] { found = FindAll(); }); };
    const auto peer = [&] {
      return Computing([&] {
        scanned = 0;
        for (const std::string& id : ids_)
          scanned += tree_.Find(id.c_str()) != nullptr;
      });
    };
    const char* const what = "GetGroupHandle / plain scan";
    report_.Ratio(what, Compare(repetitions, library, peer), kGoalFinding, ids_.size());
    if (found != scanned || !AnswersAreTheScans())
      report_.Wrong(what);
    const std::size_t before = Allocations();
    FindAll();
    report_.Number("handles found again", static_cast<double>(Allocations() - before),
                   "allocations", 0);
  }

private:
  static constexpr int kType = 1;
  static constexpr std::size_t kQueries = 200;

  std::size_t FindAll() {
    std::size_t found = 0;
    void* handle = nullptr;
    for (const std::string& id : ids_)
      found += manager_.GetGroupHandle(kType, id.c_str(), &handle, 0) != 0;
    return found;
  }

  // Names are unique, so the same name is the same group.
  bool AnswersAreTheScans() {
    return std::all_of(ids_.begin(), ids_.end(), [&](const std::string& id) {
      const GroupInfo* const scanned = tree_.Find(id.c_str());
      void* handle = nullptr;
      CString name;
      manager_.GetGroupHandle(kType, id.c_str(), &handle, 0);
      manager_.GetGroupName(kType, handle, name);
      return scanned == nullptr ? handle == nullptr : name == scanned->szName;
    });
  }

  Report& report_;
  CTQSymbolListMgr manager_;
  Tree tree_;
  std::vector<std::string> ids_;
};

} // namespace

void MeasureGroups(Report& report, bool quick) {
  const std::size_t repetitions = quick ? 3 : 21;
  const int scale = quick ? 10 : 1;
  report.Section("groups");
  MeasureLoading(report, "full load, in two levels / receiving", 200 / scale, kSubGroups,
                 repetitions);
  MeasureLoading(report, "full load, in one level / receiving", 2200 / scale, 0, repetitions);
  Finding(report, 10'000 / scale).Run(repetitions);
}

} // namespace bench
