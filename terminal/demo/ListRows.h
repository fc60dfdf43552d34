// Lists in one line each.
#pragma once

#include "manager/TQSymbolListMgr.h"

namespace demo {

// The lists of a kind from one position on: identifier, name, number of symbols, and as many ids as
// the line has room for. Returns how many there are.
int PrintListRows(CTQSymbolListMgr& manager, int kind, int first);

// One such line. A negative number is not shown.
void PrintListRow(const char* id, const char* name, int count, const char* ids);

} // namespace demo
