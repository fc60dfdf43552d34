// Lists, one line each.
#pragma once

#include "manager/TQSymbolListMgr.h"

namespace demo {

// The kinds of list that the demo edits.
inline constexpr int kUserLists = 1;
inline constexpr int kCloudLists = 8;

// Prints the lists of a kind from a position on: identifier, name, number of symbols, and as many
// ids as fit into the line. Returns their number.
int PrintListRows(CTQSymbolListMgr& manager, int kind, int first);

// One such line. A negative number is not shown.
void PrintListRow(const char* id, const char* name, int count, const char* ids);

} // namespace demo
