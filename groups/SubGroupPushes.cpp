#include <algorithm>

#include "groups/GroupPushes.h"
#include "groups/PushedGroup.h"

namespace tq {
namespace {

// Puts the set's pairs in the place of the group's sub-groups of their ids. Returns whether there
// was any.
bool ReplaceSubGroups(GroupLevel& groups, int at, const CGroupSet& set) {
  GroupLevel* const subs = groups.SubsAt(at);
  if (subs == nullptr)
    return false;
  bool replaced = false;
  for (const auto& pair : set.subGroups) {
    const int sub = subs->Find(pair.first);
    if (sub < 0)
      continue;
    subs->ReplaceAt(sub, BuildSubGroup(set.type, pair));
    replaced = true;
  }
  return replaced;
}

struct ReplacingPass {
  bool last = false; // the answer of the last set that named a group
  bool any = false;
};

ReplacingPass ReplaceAll(GroupLevel& groups, const GroupSelection& sets) {
  ReplacingPass pass;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    if (at < 0)
      continue;
    pass.last = ReplaceSubGroups(groups, at, *set);
    pass.any = pass.any || pass.last;
  }
  return pass;
}

// The record of the group itself stays as the service or the terminal made it.
void AppendSubGroups(GroupLevel& groups, int at, const CGroupSet& set) {
  GroupLevel& subs = groups.MakeSubsAt(at);
  for (const auto& pair : set.subGroups)
    subs.Append(BuildSubGroup(set.type, pair));
}

struct Removal {
  int group;
  FoldedId sub;
};

// What the sets name, in the order of the groups, and within a group in the sets' own order.
std::vector<Removal> CollectRemovals(GroupLevel& groups, const GroupSelection& sets) {
  std::vector<Removal> removals;
  for (const CGroupSet* set : sets) {
    Removal removal = {groups.Find(set->id), {}};
    if (removal.group < 0 || groups.SubCountAt(removal.group) == 0)
      continue;
    for (const auto& pair : set->subGroups) {
      if (FoldId(TextView(pair.first), removal.sub))
        removals.push_back(removal);
    }
  }
  std::stable_sort(removals.begin(), removals.end(), [](const Removal& left, const Removal& right) {
    return left.group < right.group;
  });
  return removals;
}

} // namespace

bool AddSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.Groups();
  const ReplacingPass pass = ReplaceAll(groups, sets);
  if (pass.last)
    return true;
  bool added = false;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    // The trial counts for this set alone, and sees what the sets in front of it have added.
    if (at < 0 || ReplaceSubGroups(groups, at, *set) || set->subGroups.empty())
      continue;
    AppendSubGroups(groups, at, *set);
    added = true;
  }
  if (added)
    manager.SubGroupsChanged();
  return pass.any || added;
}

// Places and ids stay, so what is known about them stays right.
bool UpdateSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  return ReplaceAll(manager.Groups(), sets).any;
}

bool UpdateSubGroupNames(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.Groups();
  bool found = false;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    GroupLevel* const subs = at < 0 ? nullptr : groups.SubsAt(at);
    if (subs == nullptr)
      continue;
    for (const auto& pair : set->subGroups) {
      if (const int sub = subs->Find(pair.first); sub >= 0) {
        subs->SetNameAt(sub, pair.second);
        found = true;
      }
    }
  }
  return found;
}

bool RemoveSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.Groups();
  const std::vector<Removal> removals = CollectRemovals(groups, sets);
  bool removed = false;
  std::vector<FoldedId> ids;
  for (std::size_t first = 0; first < removals.size();) {
    const int group = removals[first].group;
    ids.clear();
    for (; first < removals.size() && removals[first].group == group; ++first)
      ids.push_back(removals[first].sub);
    removed = groups.SubsAt(group)->RemoveFirsts(ids) || removed;
  }
  if (removed)
    manager.SubGroupsChanged();
  return removed;
}

} // namespace tq
