// Lists that come from the user's trading accounts.
#pragma once

#include <string>

#include "manager/TQSymbolListMgr.h"

namespace demo {

// Logs in to every trading system of the market, then fills an order: shows the lists that come of
// it. False, with `error` in one line, when something was not there that should be.
bool ShowAccounts(CTQSymbolListMgr& manager, std::string& error);

} // namespace demo
