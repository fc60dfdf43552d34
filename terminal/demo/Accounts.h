// Lists that come from the user's trading accounts.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Logs in to every trading system of the market, then fills an order, and shows the resulting
// lists. False, with `error` in one line, when something that should be there is missing.
bool ShowAccounts(CTQSymbolListMgr& manager, std::string& error);

} // namespace demo
