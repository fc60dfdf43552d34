// Symbols that moved from one exchange to another, in the id strings of lists.
#pragma once

#include "platform/framework/CString.h"

class CSymbolTableMgr;

namespace tq {

// The Taiwan listed market and its over-the-counter market. Old lists name the first for symbols of
// the second.
inline constexpr char kMovedFromExchange[] = "TW";
inline constexpr char kMovedToExchange[] = "TE";

// Replaces the suffix of each comma-separated id of `ids` whose suffix is `oldExchange` (letter case
// ignored) by `newExchange`, when the symbol is no longer on the old exchange and is on the new one.
// Every other piece stays as it is, headings and blanks included. Returns the number of ids changed;
// `ids` is written only if there are any.
//
// A symbol counts as gone only if the old exchange's table is complete (CSymbolTable::IsWhole). A
// table that failed to load or is empty lacks every symbol: going by it would turn the ids of a
// list into other instruments, and the next save would make that permanent.
int MoveSymbols(CSymbolTableMgr& tables, CString& ids, const CString& oldExchange,
                const CString& newExchange);

} // namespace tq
