// Which types there are. What is asked about them is in GroupQueries.cpp.
#include "groups/GroupStore.h"

#include <algorithm>
#include <utility>

namespace tq {
namespace {

constexpr int kFullLoad[] = {1,
                             2,
                             3,
                             4,
                             5,
                             6,
                             7,
                             8,
                             9,
                             10,
                             11,
                             12,
                             13,
                             14,
                             15,
                             16,
                             17,
                             18,
                             19,
                             20,
                             21,
                             101,
                             kCloudGroupType};

bool IsServiceType(int type) {
  return type >= 1 && type < kCloudGroupType;
}

} // namespace

GroupStore::GroupStore(CloudRefresh refresh) : refresh_(std::move(refresh)) {}

int GroupStore::LoadAll() {
  Clear();
  for (const int type : kFullLoad) {
    auto manager = std::make_unique<CGroupMgr>(type);
    manager->Load();
    indexes_[type] = static_cast<int>(managers_.size());
    managers_.push_back(std::move(manager));
    RefreshCloud(*managers_.back());
  }
  return 1;
}

int GroupStore::Load(int type) {
  if (!IsServiceType(type) && type != kCloudGroupType)
    return 0;
  CGroupMgr* const manager = FirstOf(type);
  if (manager == nullptr)
    return Add(type);
  manager->Load(); // which empties it first
  RefreshCloud(*manager);
  return 1;
}

// Whether there is a manager of the type already is not asked: the new one stands behind it and is the one
// that the map leads to.
int GroupStore::Add(int type) {
  if (!IsServiceType(type))
    return 0;
  auto manager = std::make_unique<CGroupMgr>(type);
  manager->Load();
  const auto behind = std::find_if(managers_.begin(), managers_.end(),
                                   [=](const auto& other) { return other->GetType() > type; });
  const int index = static_cast<int>(behind - managers_.begin());
  for (auto& entry : indexes_) {
    if (entry.second >= index)
      ++entry.second;
  }
  indexes_[type] = index;
  managers_.insert(behind, std::move(manager));
  return 1;
}

int GroupStore::Update(int type) {
  return IsServiceType(type) ? Load(type) : LoadAll();
}

// The map loses this type and is not renumbered: see the top of GroupStore.h.
int GroupStore::Remove(int type) {
  if (!IsServiceType(type))
    return 0;
  const auto found = std::find_if(managers_.begin(), managers_.end(),
                                  [=](const auto& manager) { return manager->GetType() == type; });
  if (found == managers_.end())
    return 0;
  managers_.erase(found);
  indexes_.erase(type);
  return 1;
}

void GroupStore::Clear() {
  managers_.clear();
  indexes_.clear();
}

CGroupMgr* GroupStore::FirstOf(int type) const {
  for (const auto& manager : managers_) {
    if (manager->GetType() == type)
      return manager.get();
  }
  return nullptr;
}

void GroupStore::RefreshCloud(CGroupMgr& manager) const {
  if (manager.GetType() == kCloudGroupType && refresh_)
    refresh_(manager);
}

int GroupStore::Push(const std::vector<CGroupSet>& sets, GroupPush push) {
  std::map<int, GroupSelection> selections;
  for (const CGroupSet& set : sets)
    selections[set.type].push_back(&set);
  bool changed = false;
  for (const auto& manager : managers_) {
    const auto selection = selections.find(manager->GetType());
    if (selection != selections.end())
      changed = push(*manager, selection->second) || changed;
  }
  return changed ? 1 : 0;
}

} // namespace tq
