#include "groups/GroupPushes.h"

#include "groups/PushedGroup.h"

namespace tq {
namespace {

// Returns whether a set replaced a group.
bool ReplaceGroups(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.Groups();
  bool replaced = false;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    if (at < 0)
      continue;
    if (groups.SubCountAt(at) > 0 || !set->subGroups.empty())
      manager.SubGroupsChanged();
    groups.ReplaceAt(at, BuildGroup(*set), BuildSubGroups(*set));
    replaced = true;
  }
  return replaced;
}

} // namespace

bool AddGroups(CGroupMgr& manager, const GroupSelection& sets) {
  if (ReplaceGroups(manager, sets))
    return true;
  for (const CGroupSet* set : sets) {
    if (!set->subGroups.empty())
      manager.SubGroupsChanged();
    manager.Groups().Append(BuildGroup(*set), BuildSubGroups(*set));
  }
  return true;
}

bool UpdateGroups(CGroupMgr& manager, const GroupSelection& sets) {
  return ReplaceGroups(manager, sets);
}

bool UpdateGroupNames(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.Groups();
  bool found = false;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    if (at < 0)
      continue;
    groups.SetNameAt(at, set->name);
    found = true;
  }
  return found;
}

bool RemoveGroups(CGroupMgr& manager, const GroupSelection& sets) {
  std::vector<FoldedId> ids;
  FoldedId folded;
  for (const CGroupSet* set : sets) {
    if (FoldId(TextView(set->id), folded))
      ids.push_back(folded);
  }
  const bool removed = manager.Groups().RemoveFirsts(ids);
  if (removed)
    manager.SubGroupsChanged();
  return removed;
}

} // namespace tq
