// What the terminal pushes into the groups of one type, without asking the service.
//
// Each takes the sets of the manager's type, at least one, and returns whether something changed. A
// set's group is the first top-level one with the set's id, a pair's sub-group the first of that
// group with the pair's id; letter case is ignored, and a text longer than a record's id is the id
// of none.
#pragma once

#include <vector>

#include "groups/GroupMgr.h"
#include "groups/GroupSet.h"

namespace tq {

using GroupSelection = std::vector<const CGroupSet*>;
using GroupPush = bool (*)(CGroupMgr& manager, const GroupSelection& sets);

// All or nothing, on purpose: when one set has replaced a group, the sets that matched none are not
// added. Terminals push the same sets again and again, and rely on a set that was removed meanwhile
// staying away.
bool AddGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateGroupNames(CGroupMgr& manager, const GroupSelection& sets);
bool RemoveGroups(CGroupMgr& manager, const GroupSelection& sets);

// Replaces first. Only when the last set that named a group replaced nothing in it, every set is
// tried once more, and one that again replaces nothing is added to its group. Sets in front of the
// last one decide nothing: that is what terminals are used to.
bool AddSubGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateSubGroups(CGroupMgr& manager, const GroupSelection& sets);
bool UpdateSubGroupNames(CGroupMgr& manager, const GroupSelection& sets);
bool RemoveSubGroups(CGroupMgr& manager, const GroupSelection& sets);

} // namespace tq
