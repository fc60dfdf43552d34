// What GroupStore answers about loaded types.
#include "groups/GroupStore.h"

namespace tq {
namespace {

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

} // namespace tq
