// What the demo shows of the library's state, as UTF-8 on standard output.
#pragma once

#include "manager/TQSymbolListMgr.h"
#include "symboltable/SymbolTableMgr.h"

namespace demo {

// One line for each exchange: its symbols that the library's tables resolve, and the entitlement.
void PrintExchanges(CSymbolTableMgr& tables, bool traditional);

// The buffer of all symbols: how many there are, and its exchanges in their order, by number.
void PrintAllSymbols(CTQSymbolListMgr& manager);

// Every list of the user with its rows: symbols with their names, headings, and ids that no
// exchange knows (kept in the list, shown without a row number).
void PrintLists(CTQSymbolListMgr& manager);

} // namespace demo
