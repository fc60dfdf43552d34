// The manager's groups: types, queries, members. The work is GroupStore's.
#include "groups/GroupStore.h"
#include "manager/TQSymbolListMgr.h"

namespace {

CGroupList* GroupOf(void* handle) {
  return static_cast<CGroupList*>(handle);
}

std::string_view IdOf(const char* id, int afterComma) {
  return afterComma != 0 ? tq::AfterComma(tq::TextView(id)) : tq::TextView(id);
}

} // namespace

int CTQSymbolListMgr::LoadGroupList() noexcept {
  return groups_->LoadAll();
}

int CTQSymbolListMgr::LoadGroupList(int type) noexcept {
  return groups_->Load(type);
}

int CTQSymbolListMgr::AddNewGroup(int type) noexcept {
  return groups_->Add(type);
}

int CTQSymbolListMgr::AddGroupList(int type, bool reload) noexcept {
  return reload ? LoadGroupList(type) : AddNewGroup(type);
}

int CTQSymbolListMgr::UpdateGroup(int type, const char*) noexcept {
  return groups_->Update(type);
}

int CTQSymbolListMgr::UpdateGroupType(int type) noexcept {
  return groups_->Update(type);
}

int CTQSymbolListMgr::RemoveGroupList(int type) noexcept {
  return groups_->Remove(type);
}

void CTQSymbolListMgr::ClearGroupList() noexcept {
  groups_->Clear();
}

int CTQSymbolListMgr::GetGroupIdx(int type) noexcept {
  return groups_->IndexOf(type);
}

int CTQSymbolListMgr::GetGroupCount(int type, void* handle) noexcept {
  return groups_->CountGroups(type, GroupOf(handle));
}

int CTQSymbolListMgr::GetGroupCounts(int type, const char* id) noexcept {
  return groups_->CountGroups(type, id);
}

int CTQSymbolListMgr::GetGroupInfo(int type, void* handle, int index, GroupInfo* out) noexcept {
  return groups_->CopyInfo(type, GroupOf(handle), index, out);
}

int CTQSymbolListMgr::GetGroupInfos(int type, const char* id, int index, GroupInfo* out) noexcept {
  return groups_->CopyInfo(type, id, index, out);
}

int CTQSymbolListMgr::GetGroupHandle(int type, const char* id, void** handle,
                                     int afterComma) noexcept {
  if (handle == nullptr)
    return 0;
  *handle = nullptr;
  if (id != nullptr)
    *handle = groups_->FindHandle(type, IdOf(id, afterComma));
  return *handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupListIDs(void* handle, CString& ids) noexcept {
  return groups_->CopyIds(GroupOf(handle), ids);
}

int CTQSymbolListMgr::GetGroupName(int, void* handle, CString& name) noexcept {
  name = handle == nullptr ? "" : GroupOf(handle)->GetInfo().szName;
  return handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupName(int type, const char* id, CString& name,
                                   int afterComma) noexcept {
  const GroupInfo* const info = groups_->FindSubExactly(type, IdOf(id, afterComma));
  name = info == nullptr ? "" : info->szName;
  return info != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupSymbolCount(int type, const char* id) noexcept {
  return GetGroupSymbolCount(groups_->FindSub(type, tq::TextView(id)));
}

int CTQSymbolListMgr::GetGroupSymbolCount(void* handle) noexcept {
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle == nullptr ? 0 : GroupOf(handle)->GetCount();
}

int CTQSymbolListMgr::GetGroupSymbolInfo(int type, const char* id, int index,
                                         SymbolInfo* out) noexcept {
  return GetGroupSymbolInfo(groups_->FindSub(type, tq::TextView(id)), index, out);
}

int CTQSymbolListMgr::GetGroupSymbolInfo(void* handle, int index, SymbolInfo* out) noexcept {
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle != nullptr && GroupOf(handle)->GetAt(index, out) ? 1 : 0;
}

int CTQSymbolListMgr::FindSymoblInGroupList(int type, const CString& groupId,
                                            const CString& symbol) noexcept {
  return groups_->HoldsText(type, groupId, symbol);
}
