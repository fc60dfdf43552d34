#include "groups/GroupPushes.h"

#include <map>

namespace tq {
namespace {

// --- Groups as the terminal's sets describe them -------------------------------------------------

GroupInfo MakeSubGroup(int type, const std::pair<CString, CString>& pair) {
  return MakeGroupInfo(type, pair.first, pair.second, false);
}

GroupInfo MakeGroup(const CGroupSet& set) {
  return MakeGroupInfo(set.type, set.id, set.name, !set.subGroups.empty());
}

void AppendSubGroups(const CGroupSet& set, GroupLevel& subs) {
  for (const auto& pair : set.subGroups)
    subs.Append(MakeSubGroup(set.type, pair));
}

// Null without pairs.
std::unique_ptr<GroupLevel> MakeSubGroups(const CGroupSet& set) {
  if (set.subGroups.empty())
    return nullptr;
  auto subs = std::make_unique<GroupLevel>();
  AppendSubGroups(set, *subs);
  return subs;
}

// --- Replacing -----------------------------------------------------------------------------------

// Returns whether a set replaced a group.
bool ReplaceGroups(GroupLevel& groups, const GroupSelection& sets) {
  bool replaced = false;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    if (at < 0)
      continue;
    groups.ReplaceAt(at, MakeGroup(*set), MakeSubGroups(*set));
    replaced = true;
  }
  return replaced;
}

// Returns whether a pair replaced a sub-group.
bool ReplaceSubGroups(GroupLevel* subs, const CGroupSet& set) {
  if (subs == nullptr)
    return false;
  bool replaced = false;
  for (const auto& pair : set.subGroups) {
    const int at = subs->Find(pair.first);
    if (at < 0)
      continue;
    subs->ReplaceAt(at, MakeSubGroup(set.type, pair));
    replaced = true;
  }
  return replaced;
}

struct ReplacingPass {
  bool last = false; // whether the last set that named a group replaced something
  bool any = false;
};

ReplacingPass ReplaceAllSubGroups(GroupLevel& groups, const GroupSelection& sets) {
  ReplacingPass pass;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    if (at < 0)
      continue;
    pass.last = ReplaceSubGroups(groups.SubsAt(at), *set);
    pass.any = pass.any || pass.last;
  }
  return pass;
}

// The sub-groups of the set's group; null when there is no such group, or it has none.
GroupLevel* FindSubs(GroupLevel& groups, const CGroupSet& set) {
  const int at = groups.Find(set.id);
  return at < 0 ? nullptr : groups.SubsAt(at);
}

} // namespace

bool AddGroups(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.EditGroups();
  if (ReplaceGroups(groups, sets))
    return true;
  for (const CGroupSet* set : sets)
    groups.Append(MakeGroup(*set), MakeSubGroups(*set));
  return true;
}

bool UpdateGroups(CGroupMgr& manager, const GroupSelection& sets) {
  return ReplaceGroups(manager.EditGroups(), sets);
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
  return manager.EditGroups().RemoveFirsts(ids);
}

// The record of the group stays as the service or the terminal made it, bHasSubGroup included.
bool AddSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  GroupLevel& groups = manager.EditGroups();
  const ReplacingPass pass = ReplaceAllSubGroups(groups, sets);
  if (pass.last)
    return true;
  bool changed = pass.any;
  for (const CGroupSet* set : sets) {
    const int at = groups.Find(set->id);
    // This attempt decides for this set alone, and finds what earlier sets have added.
    if (at < 0 || ReplaceSubGroups(groups.SubsAt(at), *set) || set->subGroups.empty())
      continue;
    AppendSubGroups(*set, groups.MakeSubsAt(at));
    changed = true;
  }
  return changed;
}

// Ids keep their places, so the index of sub-groups stays valid.
bool UpdateSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  return ReplaceAllSubGroups(manager.Groups(), sets).any;
}

bool UpdateSubGroupNames(CGroupMgr& manager, const GroupSelection& sets) {
  bool found = false;
  for (const CGroupSet* set : sets) {
    GroupLevel* const subs = FindSubs(manager.Groups(), *set);
    if (subs == nullptr)
      continue;
    for (const auto& pair : set->subGroups) {
      const int at = subs->Find(pair.first);
      if (at < 0)
        continue;
      subs->SetNameAt(at, pair.second);
      found = true;
    }
  }
  return found;
}

// The ids are collected first, so that each level is walked once however many sets name its group.
bool RemoveSubGroups(CGroupMgr& manager, const GroupSelection& sets) {
  std::map<GroupLevel*, std::vector<FoldedId>> idsBySubs;
  FoldedId folded;
  for (const CGroupSet* set : sets) {
    GroupLevel* const subs = FindSubs(manager.EditGroups(), *set);
    if (subs == nullptr)
      continue;
    for (const auto& pair : set->subGroups) {
      if (FoldId(TextView(pair.first), folded))
        idsBySubs[subs].push_back(folded);
    }
  }
  bool removed = false;
  for (const auto& [subs, ids] : idsBySubs)
    removed = subs->RemoveFirsts(ids) || removed;
  return removed;
}

} // namespace tq
