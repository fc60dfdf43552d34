// Groups: types, queries, members, and the groups that the terminal pushes in.
#include "manager/ManagerState.h"
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
  const tq::Operation operation("LoadGroupList");
  return state_->groups.LoadAll();
}

int CTQSymbolListMgr::LoadGroupList(int type) noexcept {
  const tq::Operation operation("LoadGroupList");
  return state_->groups.Load(type);
}

int CTQSymbolListMgr::AddNewGroup(int type) noexcept {
  const tq::Operation operation("AddNewGroup");
  return state_->groups.Add(type);
}

int CTQSymbolListMgr::AddGroupList(int type, bool reload) noexcept {
  const tq::Operation operation("AddGroupList");
  return reload ? state_->groups.Load(type) : state_->groups.Add(type);
}

int CTQSymbolListMgr::UpdateGroup(int type, const char*) noexcept {
  const tq::Operation operation("UpdateGroup");
  return state_->groups.Update(type);
}

int CTQSymbolListMgr::UpdateGroupType(int type) noexcept {
  const tq::Operation operation("UpdateGroupType");
  return state_->groups.Update(type);
}

int CTQSymbolListMgr::RemoveGroupList(int type) noexcept {
  const tq::Operation operation("RemoveGroupList");
  return state_->groups.Remove(type);
}

void CTQSymbolListMgr::ClearGroupList() noexcept {
  tq::CheckCall("ClearGroupList");
  state_->groups.Clear();
}

int CTQSymbolListMgr::GetGroupIdx(int type) noexcept {
  tq::CheckCall("GetGroupIdx");
  return state_->groups.IndexOf(type);
}

int CTQSymbolListMgr::GetGroupCount(int type, void* handle) noexcept {
  tq::CheckCall("GetGroupCount");
  if (!state_->IsUsable("GetGroupCount", handle))
    return 0;
  return state_->groups.CountGroups(type, GroupOf(handle));
}

int CTQSymbolListMgr::GetGroupCounts(int type, const char* id) noexcept {
  tq::CheckCall("GetGroupCounts", "id", id);
  return state_->groups.CountGroups(type, id);
}

int CTQSymbolListMgr::GetGroupInfo(int type, void* handle, int index, GroupInfo* out) noexcept {
  tq::CheckCall("GetGroupInfo");
  if (!state_->IsUsable("GetGroupInfo", handle))
    return 0;
  return state_->groups.CopyInfo(type, GroupOf(handle), index, out);
}

int CTQSymbolListMgr::GetGroupInfos(int type, const char* id, int index, GroupInfo* out) noexcept {
  tq::CheckCall("GetGroupInfos", "id", id);
  return state_->groups.CopyInfo(type, id, index, out);
}

int CTQSymbolListMgr::GetGroupHandle(int type, const char* id, void** handle,
                                     int afterComma) noexcept {
  tq::CheckCall("GetGroupHandle", "id", id);
  if (handle == nullptr)
    return 0;
  *handle = nullptr;
  if (id != nullptr)
    *handle = state_->groups.FindHandle(type, IdOf(id, afterComma));
  return *handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupListIDs(void* handle, CString& ids) noexcept {
  tq::CheckCall("GetGroupListIDs");
  if (!state_->IsUsable("GetGroupListIDs", handle))
    return 0;
  return state_->groups.CopyIds(GroupOf(handle), ids);
}

int CTQSymbolListMgr::GetGroupName(int, void* handle, CString& name) noexcept {
  tq::CheckCall("GetGroupName");
  if (!state_->IsUsable("GetGroupName", handle))
    return 0;
  name = handle == nullptr ? "" : GroupOf(handle)->GetInfo().szName;
  return handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupName(int type, const char* id, CString& name,
                                   int afterComma) noexcept {
  tq::CheckCall("GetGroupName", "id", id);
  const GroupInfo* const info = state_->groups.FindSubExactly(type, IdOf(id, afterComma));
  name = info == nullptr ? "" : info->szName;
  return info != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupSymbolCount(int type, const char* id) noexcept {
  tq::CheckCall("GetGroupSymbolCount", "id", id);
  return GetGroupSymbolCount(state_->groups.FindSub(type, tq::TextView(id)));
}

int CTQSymbolListMgr::GetGroupSymbolCount(void* handle) noexcept {
  tq::CheckCall("GetGroupSymbolCount");
  if (!state_->IsUsable("GetGroupSymbolCount", handle))
    return 0;
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle == nullptr ? 0 : GroupOf(handle)->GetCount();
}

int CTQSymbolListMgr::GetGroupSymbolInfo(int type, const char* id, int index,
                                         SymbolInfo* out) noexcept {
  tq::CheckCall("GetGroupSymbolInfo", "id", id);
  return GetGroupSymbolInfo(state_->groups.FindSub(type, tq::TextView(id)), index, out);
}

int CTQSymbolListMgr::GetGroupSymbolInfo(void* handle, int index, SymbolInfo* out) noexcept {
  tq::CheckCall("GetGroupSymbolInfo");
  if (!state_->IsUsable("GetGroupSymbolInfo", handle))
    return 0;
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle != nullptr && GroupOf(handle)->GetAt(index, out) ? 1 : 0;
}

int CTQSymbolListMgr::FindSymoblInGroupList(int type, const CString& groupId,
                                            const CString& symbol) noexcept {
  tq::CheckCall("FindSymoblInGroupList", "groupId,symbol", groupId, symbol);
  return state_->groups.HoldsText(type, groupId, symbol);
}

int CTQSymbolListMgr::AddGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("AddGroup");
  return state_->groups.Push(sets, tq::AddGroups);
}

int CTQSymbolListMgr::UpdateGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("UpdateGroup");
  return state_->groups.Push(sets, tq::UpdateGroups);
}

int CTQSymbolListMgr::UpdateGroupName(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("UpdateGroupName");
  return state_->groups.Push(sets, tq::UpdateGroupNames);
}

int CTQSymbolListMgr::RemoveGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("RemoveGroup");
  return state_->groups.Push(sets, tq::RemoveGroups);
}

int CTQSymbolListMgr::AddSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("AddSubGroup");
  return state_->groups.Push(sets, tq::AddSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("UpdateSubGroup");
  return state_->groups.Push(sets, tq::UpdateSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroupName(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("UpdateSubGroupName");
  return state_->groups.Push(sets, tq::UpdateSubGroupNames);
}

int CTQSymbolListMgr::RemoveSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  const tq::Operation operation("RemoveSubGroup");
  return state_->groups.Push(sets, tq::RemoveSubGroups);
}
