// The pushes of the model.
#include "tests/groups/GroupModel.h"

namespace groupmodel {
namespace {

std::vector<CGroupSet> SetsOf(const std::vector<CGroupSet>& sets, int type) {
  std::vector<CGroupSet> selection;
  for (const CGroupSet& set : sets)
    if (set.type == type)
      selection.push_back(set);
  return selection;
}

Group Build(int type, const CString& id, const CString& name) {
  Group group;
  group.type = type;
  group.id = std::string(id).substr(0, 16);
  group.name = std::string(name).substr(0, 48);
  return group;
}

Group Build(const CGroupSet& set) {
  Group group = Build(set.type, set.id, set.name);
  group.hasSub = set.subGroups.empty() ? 0 : 1;
  for (const auto& pair : set.subGroups)
    group.subs.push_back(Build(set.type, pair.first, pair.second));
  return group;
}

bool ReplaceGroups(Manager& manager, const std::vector<CGroupSet>& sets) {
  bool replaced = false;
  for (const CGroupSet& set : sets) {
    if (Group* const group = FindId(manager.groups, std::string(set.id))) {
      *group = Build(set);
      replaced = true;
    }
  }
  return replaced;
}

bool ReplaceSubs(Group& group, const CGroupSet& set) {
  bool replaced = false;
  for (const auto& pair : set.subGroups) {
    if (Group* const sub = FindId(group.subs, std::string(pair.first))) {
      *sub = Build(set.type, pair.first, pair.second);
      replaced = true;
    }
  }
  return replaced;
}

bool Erase(std::vector<Group>& groups, const std::string& id) {
  Group* const found = FindId(groups, id);
  if (found == nullptr)
    return false;
  groups.erase(groups.begin() + (found - groups.data()));
  return true;
}

// Applies a push to each manager; returns whether one of them changed.
template <typename Push>
int Each(std::vector<Manager>& managers, const std::vector<CGroupSet>& sets, Push push) {
  int changed = 0;
  for (Manager& manager : managers) {
    const std::vector<CGroupSet> selection = SetsOf(sets, manager.type);
    if (!selection.empty() && push(manager, selection))
      changed = 1;
  }
  return changed;
}

// Applies a push to each group that a set names.
template <typename Push>
int EachGroup(std::vector<Manager>& managers, const std::vector<CGroupSet>& sets, Push push) {
  return Each(managers, sets, [&](Manager& manager, const std::vector<CGroupSet>& selection) {
    bool changed = false;
    for (const CGroupSet& set : selection)
      if (Group* const group = FindId(manager.groups, std::string(set.id)))
        changed = push(*group, set) || changed;
    return changed;
  });
}

} // namespace

int Model::AddGroup(const std::vector<CGroupSet>& sets) {
  return Each(managers, sets, [](Manager& manager, const std::vector<CGroupSet>& selection) {
    if (!ReplaceGroups(manager, selection))
      for (const CGroupSet& set : selection)
        manager.groups.push_back(Build(set));
    return true;
  });
}

int Model::UpdateGroup(const std::vector<CGroupSet>& sets) {
  return Each(managers, sets, ReplaceGroups);
}

int Model::UpdateGroupName(const std::vector<CGroupSet>& sets) {
  return EachGroup(managers, sets, [](Group& group, const CGroupSet& set) {
    group.name = std::string(set.name).substr(0, 48);
    return true;
  });
}

int Model::RemoveGroup(const std::vector<CGroupSet>& sets) {
  return Each(managers, sets, [](Manager& manager, const std::vector<CGroupSet>& selection) {
    bool removed = false;
    for (const CGroupSet& set : selection)
      removed = Erase(manager.groups, std::string(set.id)) || removed;
    return removed;
  });
}

int Model::AddSubGroup(const std::vector<CGroupSet>& sets) {
  return Each(managers, sets, [](Manager& manager, const std::vector<CGroupSet>& selection) {
    bool changed = false;
    bool answer = false;
    for (const CGroupSet& set : selection) {
      if (Group* const group = FindId(manager.groups, std::string(set.id))) {
        answer = ReplaceSubs(*group, set);
        changed = changed || answer;
      }
    }
    if (answer)
      return true;
    for (const CGroupSet& set : selection) {
      Group* const group = FindId(manager.groups, std::string(set.id));
      if (group == nullptr || ReplaceSubs(*group, set))
        continue;
      for (const auto& pair : set.subGroups) {
        group->subs.push_back(Build(set.type, pair.first, pair.second));
        changed = true;
      }
    }
    return changed;
  });
}

int Model::UpdateSubGroup(const std::vector<CGroupSet>& sets) {
  return EachGroup(managers, sets, ReplaceSubs);
}

int Model::UpdateSubGroupName(const std::vector<CGroupSet>& sets) {
  return EachGroup(managers, sets, [](Group& group, const CGroupSet& set) {
    bool found = false;
    for (const auto& pair : set.subGroups) {
      if (Group* const sub = FindId(group.subs, std::string(pair.first))) {
        sub->name = std::string(pair.second).substr(0, 48);
        found = true;
      }
    }
    return found;
  });
}

int Model::RemoveSubGroup(const std::vector<CGroupSet>& sets) {
  return EachGroup(managers, sets, [](Group& group, const CGroupSet& set) {
    bool removed = false;
    for (const auto& pair : set.subGroups)
      removed = Erase(group.subs, std::string(pair.first)) || removed;
    return removed;
  });
}

} // namespace groupmodel
