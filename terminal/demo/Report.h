// The library's state, printed as UTF-8 on standard output.
#pragma once

#include "manager/TQSymbolListMgr.h"
#include "symboltable/SymbolTableMgr.h"

namespace demo {

// A line for each exchange: the number of symbols that the library's tables resolve, and the
// entitlement.
void PrintExchanges(CSymbolTableMgr& tables, bool traditional);

// The buffer of all symbols: their number, and its exchanges in order.
void PrintAllSymbols(CTQSymbolListMgr& manager);

// Every list of the user with its rows: symbols with names, headings, and unknown ids, which stay
// in the list but have no row number.
void PrintLists(CTQSymbolListMgr& manager);

} // namespace demo
