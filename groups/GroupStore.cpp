// Which types there are. What is asked about them is in GroupQueries.cpp.
#include "groups/GroupStore.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace tq {
namespace {

// The types of a full load, ascending.
constexpr auto kFullLoad = [] {
  constexpr int kNumbered = 21; // from 1 on
  std::array<int, kNumbered + 2> types = {};
  std::iota(types.begin(), types.begin() + kNumbered, 1);
  types[kNumbered] = 101;
  types[kNumbered + 1] = kCloudGroupType;
  return types;
}();

bool IsServiceType(int type) {
  return type >= 1 && type < kCloudGroupType;
}

} // namespace

GroupStore::GroupStore(CloudRefresh refresh) : refresh_(std::move(refresh)) {}

// A manager that is being loaded is in no array. The terminal may call back whenever the service is
// asked, and removes or reloads only what is there.
GroupStore::Manager GroupStore::MakeLoaded(int type) const {
  auto manager = std::make_unique<CGroupMgr>(type);
  manager->Load();
  if (type == kCloudGroupType && refresh_)
    refresh_(*manager);
  return manager;
}

int GroupStore::LoadAll() {
  Clear();
  std::vector<Manager> loaded;
  for (const int type : kFullLoad)
    loaded.push_back(MakeLoaded(type));
  Clear(); // what the terminal loaded meanwhile
  for (Manager& manager : loaded) {
    indexes_[manager->GetType()] = static_cast<int>(managers_.size());
    managers_.push_back(std::move(manager));
  }
  return 1;
}

int GroupStore::Load(int type) {
  if (!IsServiceType(type) && type != kCloudGroupType)
    return 0;
  const auto present = FirstOf(type);
  if (present == managers_.end())
    return Add(type);
  (*present)->Empty();
  Manager loaded = MakeLoaded(type);
  const auto place = FirstOf(type); // the terminal may have moved or removed it
  if (place == managers_.end())
    return 0;
  *place = std::move(loaded);
  return 1;
}

// Whether there is a manager of the type already is not asked: the new one stands behind it and is
// the one that the map leads to. Behind all others it moves nothing: positions that a removal left
// stale stay so.
int GroupStore::Add(int type) {
  if (!IsServiceType(type))
    return 0;
  Manager manager = MakeLoaded(type);
  const auto greater = std::find_if(managers_.begin(), managers_.end(),
                                    [=](const Manager& other) { return other->GetType() > type; });
  const int index = static_cast<int>(greater - managers_.begin());
  if (greater != managers_.end()) {
    for (auto& entry : indexes_) {
      if (entry.second >= index)
        ++entry.second;
    }
  }
  indexes_[type] = index;
  managers_.insert(greater, std::move(manager));
  return 1;
}

int GroupStore::Update(int type) {
  return IsServiceType(type) ? Load(type) : LoadAll();
}

// The map loses this type and is not renumbered: see the top of GroupStore.h.
int GroupStore::Remove(int type) {
  if (!IsServiceType(type))
    return 0;
  const auto found = FirstOf(type);
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

std::vector<GroupStore::Manager>::iterator GroupStore::FirstOf(int type) {
  return std::find_if(managers_.begin(), managers_.end(),
                      [=](const Manager& manager) { return manager->GetType() == type; });
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
