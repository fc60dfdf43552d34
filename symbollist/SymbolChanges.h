// What changes of symbols do to lists: symbols that moved to another exchange, and symbols that the
// terminal announces as changed.
#pragma once

#include <functional>
#include <memory>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CStringArray.h"
#include "symbollist/OwnedLists.h"

namespace tq {

// Renames the moved symbols of an id string (symboltable/MovedSymbols.h); true when it changed. The
// owners of lists are given this function since they do not own the symbol tables.
using RenameMoved = std::function<bool(CString& ids)>;

// Renames the moved symbols of a list and resolves it; true when it changed.
bool RenameMovedIn(CSymbolList& list, const RenameMoved& rename);

// A copy with the moved symbols renamed in both lists: in the source too, on purpose, so that a
// dialog goes on showing what was stored. The source may be one of the manager's own lists, which
// the terminal may delete during the service call; it is not accessed after that.
std::unique_ptr<CSymbolList> CopyMoved(CSymbolList& source, const RenameMoved& rename);

// The same for each of `sources`, CSymbolList pointers of which a null one is passed over.
ListVector CopyAllMoved(const CPtrArray& sources, const RenameMoved& rename);

// Appends the symbols of an announcement (symbolid/SymbolRecords.h), in upper case, to
// `symbols`. Logs a line when there are more than are looked at.
void ReadChangedSymbols(const char* records, int count, CStringArray& symbols);

// Resolves again every list that holds one of the symbols, with or without its exchange.
void ResolveHolders(const OwnedLists& lists, const CStringArray& symbols);

} // namespace tq
