// Symbols that went over from one exchange to another, in the id strings of lists.
#pragma once

#include "platform/framework/CString.h"

class CSymbolTableMgr;

namespace tq {

// The Taiwan listed market and its over-the-counter market: ids of old lists have the first for
// symbols of the second.
inline constexpr char kMovedFromExchange[] = "TW";
inline constexpr char kMovedToExchange[] = "TE";

// Gives each comma-separated id of `ids` whose suffix is `oldExchange` (letter case ignored) the
// suffix `newExchange`, when the symbol is not on the old exchange any more and is on the new one.
// Every other piece stays as it is, headings and blanks included. Returns how many ids were
// changed; `ids` is written only then.
//
// That a symbol left the old exchange is said only by a table of it that was loaded with symbols
// and still has some (CSymbolTable::IsWhole). What a table that failed to load, came empty or is
// not there lacks says nothing: the ids of a list would become other instruments, and the next save
// would keep it so.
int MoveSymbols(CSymbolTableMgr& tables, CString& ids, const CString& oldExchange,
                const CString& newExchange);

} // namespace tq
