#include "groups/GroupStore.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "platform/diagnostics/Operation.h"

namespace tq {
namespace {

// The types of a full load, ascending.
constexpr auto kFullLoad = [] {
  constexpr int kNumbered = 21; // from 1 on
  std::array<int, kNumbered + 2> types = {};
  std::iota(types.begin(), types.begin() + kNumbered, 1);
  types[kNumbered] = TQGroupTypeEditionMarkets;
  types[kNumbered + 1] = kCloudGroupType;
  return types;
}();

bool IsServiceType(int type) {
  return type >= 1 && type < kCloudGroupType;
}

// Only groups of these types can be searched for a symbol; the service defines what they are.
bool IsSearchedForSymbols(int type) {
  return type == 2 || type == 7 || type == 8;
}

int NoteType(int type) {
  return NoteProblem(TQProblemRange, "there are no groups of type %d", type);
}

void NoteFailure(const CGroupMgr& manager) {
  if (manager.HasFailed())
    NoteProblem(TQProblemService, "VLGetSubGroup fails for type %d", manager.GetType());
}

int CopyRecord(const GroupLevel* level, int index, GroupInfo* out) {
  if (level == nullptr || out == nullptr || !level->Has(index))
    return 0;
  *out = level->InfoAt(index);
  return 1;
}

// The sub-groups of the first top-level group with that id, or null. For a null id the top-level
// groups.
GroupLevel* LevelOf(CGroupMgr& manager, const char* id) {
  GroupLevel& groups = manager.Groups();
  if (id == nullptr)
    return &groups;
  const int at = groups.Find(id);
  return at < 0 ? nullptr : groups.SubsAt(at);
}

} // namespace

GroupStore::GroupStore(CloudRefresh refresh) : refresh_(std::move(refresh)) {}

// The manager is not in the array while it loads: the terminal is re-entrant there, and could
// remove or reload it.
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
  loaded.reserve(std::size(kFullLoad));
  for (const int type : kFullLoad)
    loaded.push_back(MakeLoaded(type));
  Clear(); // of what the terminal loaded meanwhile
  for (Manager& manager : loaded) {
    indexes_[manager->GetType()] = static_cast<int>(managers_.size());
    managers_.push_back(std::move(manager));
  }
  return 1;
}

int GroupStore::Load(int type) {
  if (!IsServiceType(type) && type != kCloudGroupType)
    return NoteType(type);
  const auto present = FirstOf(type);
  if (present == managers_.end())
    return Add(type);
  (*present)->Empty();
  Manager loaded = MakeLoaded(type);
  NoteFailure(*loaded);
  const auto place = FirstOf(type); // the terminal may have moved or removed it
  if (place == managers_.end())
    return 0;
  *place = std::move(loaded);
  return 1;
}

// A second manager of a type stands behind the first, and the map leads to the second. One that is
// added at the end changes no other entry of the map, stale ones included.
int GroupStore::Add(int type) {
  if (!IsServiceType(type))
    return NoteType(type);
  Manager manager = MakeLoaded(type);
  NoteFailure(*manager);
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

// The other entries of the map are not renumbered: see the top of GroupStore.h.
int GroupStore::Remove(int type) {
  if (!IsServiceType(type))
    return NoteType(type);
  const auto found = FirstOf(type);
  if (found == managers_.end())
    return NoteProblem(TQProblemNoList, "type %d of groups is not loaded", type);
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

// A handle answers for itself whatever its type, as long as the given type is loaded.
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

bool GroupStore::Holds(const CGroupList* handle) const {
  return std::any_of(managers_.begin(), managers_.end(),
                     [=](const Manager& manager) { return manager->Groups().Holds(handle); });
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

// Matches any part of the id string, across commas too: terminals ask with beginnings of ids.
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
