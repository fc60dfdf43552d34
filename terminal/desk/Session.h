// A trading day's start, once the manager has read the lists: the logins, and the lists that the
// broker's server has.
#pragma once

#include "tqSymbol.h"

namespace desk {

// Starts the library on a data directory, with everything that the window shows. False when the
// symbol tables could not be built.
bool StartLibrary(CTQSymbolListMgr& manager, const CString& dataDirectory);

// Has the holdings of each trading system that the user is logged in to made into lists.
void LogIn(CTQSymbolListMgr& manager);

// Pushes the cloud lists in. There is no server here, so they are these, every day anew.
void PushCloudLists(CTQSymbolListMgr& manager);

} // namespace desk
