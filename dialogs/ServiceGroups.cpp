#include "dialogs/ServiceGroups.h"

#include "manager/TQSymbolListMgr.h"

namespace tq {
namespace {

// `read` is one of the manager's operations that copy the group at a place.
template <typename Read> std::vector<GroupInfo> ReadGroups(int count, const Read& read) {
  std::vector<GroupInfo> groups;
  for (int i = 0; i < count; ++i) {
    GroupInfo group = {};
    if (read(i, &group) != 0)
      groups.push_back(group);
  }
  return groups;
}

} // namespace

std::vector<GroupInfo> TopGroups(CTQSymbolListMgr& manager, int type) {
  return ReadGroups(manager.GetGroupCount(type, nullptr), [&](int index, GroupInfo* out) {
    return manager.GetGroupInfo(type, nullptr, index, out);
  });
}

std::vector<GroupInfo> SubGroups(CTQSymbolListMgr& manager, const GroupInfo& group) {
  return ReadGroups(manager.GetGroupCounts(group.nType, group.szID),
                    [&](int index, GroupInfo* out) {
                      return manager.GetGroupInfos(group.nType, group.szID, index, out);
                    });
}

} // namespace tq
