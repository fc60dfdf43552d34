// The groups that the symbol-data service publishes, as the manager has them now.
#pragma once

#include <vector>

#include "platform/services/VLRecords.h"

class CTQSymbolListMgr;

namespace tq {

// The groups of a type, and those inside of one group, in the service's order.
std::vector<GroupInfo> TopGroups(CTQSymbolListMgr& manager, int type);
std::vector<GroupInfo> SubGroups(CTQSymbolListMgr& manager, const GroupInfo& group);

} // namespace tq
