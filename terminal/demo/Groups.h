// The service's groups as a terminal's tree view shows them.
#pragma once

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Shows every group of every type but the cloud groups with the number of its members, and how
// often the service was asked for members: only when a group is opened.
void ShowGroups(CTQSymbolListMgr& manager);

} // namespace demo
