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

// The types whose groups are searched for a symbol; what they are is the service's business.
bool IsSearchedForSymbols(int type) {
  return type == 2 || type == 7 || type == 8;
}

int CopyRecord(const GroupLevel* level, int index, GroupInfo* out) {
  if (level == nullptr || out == nullptr || !level->Has(index))
    return 0;
  *out = level->InfoAt(index);
  return 1;
}

// The sub-groups of the first top-level group with that id, or null; of all of them for a null id.
GroupLevel* LevelOf(CGroupMgr& manager, const char* id) {
  GroupLevel& groups = manager.Groups();
  if (id == nullptr)
    return &groups;
  const int at = groups.Find(id);
  return at < 0 ? nullptr : groups.SubsAt(at);
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

// --- Loaded types ------------------------------------------------------------------------------

int GroupStore::IndexOf(int type) const {
  const auto found = indexes_.find(type);
  return found == indexes_.end() ? -1 : found->second;
}

CGroupMgr* GroupStore::Loaded(int type) const {
  const int index = IndexOf(type);
  if (index < 0 || index >= static_cast<int>(managers_.size()))
    return nullptr;
  return managers_[static_cast<std::size_t>(index)].get();
}

// A handle answers for itself, whatever its type; the type only has to be loaded.
int GroupStore::CountGroups(int type, const CGroupList* handle) const {
  if (handle != nullptr)
    return Has(type) ? handle->GetSubCount() : 0;
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? 0 : manager->GetCount();
}

int GroupStore::CountGroups(int type, const char* id) const {
  CGroupMgr* const manager = Loaded(type);
  GroupLevel* const level = manager == nullptr ? nullptr : LevelOf(*manager, id);
  return level == nullptr ? 0 : level->Count();
}

int GroupStore::CopyInfo(int type, const CGroupList* handle, int index, GroupInfo* out) const {
  if (handle != nullptr)
    return Has(type) ? CopyRecord(handle->Subs(), index, out) : 0;
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? 0 : CopyRecord(&manager->Groups(), index, out);
}

int GroupStore::CopyInfo(int type, const char* id, int index, GroupInfo* out) const {
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? 0 : CopyRecord(LevelOf(*manager, id), index, out);
}

CGroupList* GroupStore::FindHandle(int type, std::string_view id) const {
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? nullptr : manager->FindAnywhere(id);
}

CGroupList* GroupStore::FindSub(int type, std::string_view id) const {
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? nullptr : manager->FindSub(id);
}

const GroupInfo* GroupStore::FindSubExactly(int type, std::string_view id) const {
  CGroupMgr* const manager = Loaded(type);
  return manager == nullptr ? nullptr : manager->FindSubExactly(id);
}

int GroupStore::CopyIds(CGroupList* handle, CString& ids) const {
  ids.Empty();
  if (handle == nullptr || indexes_.empty())
    return 0;
  const auto alive = KeepAlive(handle);
  ids = handle->GetIDs();
  return 1;
}

// Any part of the member ids will do, also one that goes over a comma: terminals ask with
// beginnings of ids.
int GroupStore::HoldsText(int type, const CString& groupId, const CString& text) const {
  if (groupId.IsEmpty() || text.IsEmpty() || !IsSearchedForSymbols(type))
    return 0;
  CGroupList* const group = FindHandle(type, AfterComma(TextView(groupId)));
  const auto alive = KeepAlive(group);
  return group != nullptr && group->GetIDs().Find(text) >= 0 ? 1 : 0;
}

// --- Pushes ------------------------------------------------------------------------------------

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
