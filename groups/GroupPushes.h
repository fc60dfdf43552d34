// Changes that the terminal pushes into the groups of one type. The service is not asked.
//
// Each operation takes the sets of the manager's type, at least one, and returns whether anything
// changed. A set names the first top-level group with its id, a pair the first sub-group of that
// group with its id. Letter case is ignored; a text longer than a record's id names no group.
#pragma once

#include <vector>

#include "groups/GroupMgr.h"
#include "groups/GroupSet.h"

namespace tq {

using GroupSelection = std::vector<const CGroupSet*>;
using GroupPush = bool (*)(CGroupMgr& manager, const GroupSelection& sets);

// Either replaces or adds, on purpose: once a set has replaced a group, sets that name no group are
// not added. Terminals push the same sets again and again, and expect a group that was removed in
// between not to come back.
bool AddGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateGroupNames(CGroupMgr& manager, const GroupSelection& sets);
bool RemoveGroups(CGroupMgr& manager, const GroupSelection& sets);

// Every set first replaces sub-groups. If the last set that names a group replaced something, that
// is all. Otherwise every set is tried again, and the sub-groups of a set that again replaces
// nothing are added to its group. That only the last set decides is what terminals expect.
bool AddSubGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateSubGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateSubGroupNames(CGroupMgr& manager, const GroupSelection& sets);
bool RemoveSubGroups(CGroupMgr& manager, const GroupSelection& sets);

} // namespace tq
