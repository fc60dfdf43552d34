// Lists from the broker's server.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Pushes a list twice and shows it as a cloud group and as a list of kind 8. False, with `error` in
// one line, when something that should be there is missing.
bool ShowCloud(CTQSymbolListMgr& manager, std::string& error);

} // namespace demo
