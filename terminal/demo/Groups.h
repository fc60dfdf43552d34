// The service's groups as a terminal's tree view shows them.
#pragma once

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Every group of every type but the cloud groups, with the number of its members. Says how often
// the service was asked for members: when a group is opened, and not before.
void ShowGroups(CTQSymbolListMgr& manager);

} // namespace demo
