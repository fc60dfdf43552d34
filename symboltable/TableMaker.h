// Tables for exchanges that have none yet.
#pragma once

#include "symboltable/ExchangeTables.h"

namespace tq {

// Makes a table of that exchange, marked as the user's entitlements say, loads it and puts it into
// the first free slot at or after `from`: whether loading succeeded is in `loaded`. Returns the
// slot, or None when there is none: then no table was made. When the terminal made a table of that
// name while the services were asked, the new one takes its place.
int MakeTable(ExchangeTables& slots, int from, const CString& exchName, int exchId, int& loaded);

// The same in any slot, under the service's name for the exchange when `exchName` is empty. Returns
// whether a table was made and loaded.
int MakeTable(ExchangeTables& slots, const CString& exchName, int exchId);

} // namespace tq
