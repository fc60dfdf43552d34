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
  return state_->groups.LoadAll();
}

int CTQSymbolListMgr::LoadGroupList(int type) noexcept {
  return state_->groups.Load(type);
}

int CTQSymbolListMgr::AddNewGroup(int type) noexcept {
  return state_->groups.Add(type);
}

int CTQSymbolListMgr::AddGroupList(int type, bool reload) noexcept {
  return reload ? LoadGroupList(type) : AddNewGroup(type);
}

int CTQSymbolListMgr::UpdateGroup(int type, const char*) noexcept {
  return state_->groups.Update(type);
}

int CTQSymbolListMgr::UpdateGroupType(int type) noexcept {
  return state_->groups.Update(type);
}

int CTQSymbolListMgr::RemoveGroupList(int type) noexcept {
  return state_->groups.Remove(type);
}

void CTQSymbolListMgr::ClearGroupList() noexcept {
  state_->groups.Clear();
}

int CTQSymbolListMgr::GetGroupIdx(int type) noexcept {
  return state_->groups.IndexOf(type);
}

int CTQSymbolListMgr::GetGroupCount(int type, void* handle) noexcept {
  return state_->groups.CountGroups(type, GroupOf(handle));
}

int CTQSymbolListMgr::GetGroupCounts(int type, const char* id) noexcept {
  return state_->groups.CountGroups(type, id);
}

int CTQSymbolListMgr::GetGroupInfo(int type, void* handle, int index, GroupInfo* out) noexcept {
  return state_->groups.CopyInfo(type, GroupOf(handle), index, out);
}

int CTQSymbolListMgr::GetGroupInfos(int type, const char* id, int index, GroupInfo* out) noexcept {
  return state_->groups.CopyInfo(type, id, index, out);
}

int CTQSymbolListMgr::GetGroupHandle(int type, const char* id, void** handle,
                                     int afterComma) noexcept {
  if (handle == nullptr)
    return 0;
  *handle = nullptr;
  if (id != nullptr)
    *handle = state_->groups.FindHandle(type, IdOf(id, afterComma));
  return *handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupListIDs(void* handle, CString& ids) noexcept {
  return state_->groups.CopyIds(GroupOf(handle), ids);
}

int CTQSymbolListMgr::GetGroupName(int, void* handle, CString& name) noexcept {
  name = handle == nullptr ? "" : GroupOf(handle)->GetInfo().szName;
  return handle != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupName(int type, const char* id, CString& name,
                                   int afterComma) noexcept {
  const GroupInfo* const info = state_->groups.FindSubExactly(type, IdOf(id, afterComma));
  name = info == nullptr ? "" : info->szName;
  return info != nullptr ? 1 : 0;
}

int CTQSymbolListMgr::GetGroupSymbolCount(int type, const char* id) noexcept {
  return GetGroupSymbolCount(state_->groups.FindSub(type, tq::TextView(id)));
}

int CTQSymbolListMgr::GetGroupSymbolCount(void* handle) noexcept {
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle == nullptr ? 0 : GroupOf(handle)->GetCount();
}

int CTQSymbolListMgr::GetGroupSymbolInfo(int type, const char* id, int index,
                                         SymbolInfo* out) noexcept {
  return GetGroupSymbolInfo(state_->groups.FindSub(type, tq::TextView(id)), index, out);
}

int CTQSymbolListMgr::GetGroupSymbolInfo(void* handle, int index, SymbolInfo* out) noexcept {
  const auto alive = tq::KeepAlive(GroupOf(handle));
  return handle != nullptr && GroupOf(handle)->GetAt(index, out) ? 1 : 0;
}

int CTQSymbolListMgr::FindSymoblInGroupList(int type, const CString& groupId,
                                            const CString& symbol) noexcept {
  return state_->groups.HoldsText(type, groupId, symbol);
}

int CTQSymbolListMgr::AddGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::AddGroups);
}

int CTQSymbolListMgr::UpdateGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::UpdateGroups);
}

int CTQSymbolListMgr::UpdateGroupName(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::UpdateGroupNames);
}

int CTQSymbolListMgr::RemoveGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::RemoveGroups);
}

int CTQSymbolListMgr::AddSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::AddSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::UpdateSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroupName(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::UpdateSubGroupNames);
}

int CTQSymbolListMgr::RemoveSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return state_->groups.Push(sets, tq::RemoveSubGroups);
}
