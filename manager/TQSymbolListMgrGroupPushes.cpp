// The groups that the terminal pushes into the manager. GroupPushes.h says what each does.
#include "groups/GroupStore.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::AddGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::AddGroups);
}

int CTQSymbolListMgr::UpdateGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::UpdateGroups);
}

int CTQSymbolListMgr::UpdateGroupName(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::UpdateGroupNames);
}

int CTQSymbolListMgr::RemoveGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::RemoveGroups);
}

int CTQSymbolListMgr::AddSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::AddSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::UpdateSubGroups);
}

int CTQSymbolListMgr::UpdateSubGroupName(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::UpdateSubGroupNames);
}

int CTQSymbolListMgr::RemoveSubGroup(const std::vector<CGroupSet>& sets) noexcept {
  return groups_->Push(sets, tq::RemoveSubGroups);
}
