// What lists do when the terminal announces that symbols of an exchange changed.
#pragma once

#include "platform/framework/CStringArray.h"
#include "symbollist/OwnedLists.h"

namespace tq {

// Puts the symbols of an announcement (SymbolRecords.h), in upper case, behind those of `symbols`.
// Of too many, a line in the log tells.
void ReadChangedSymbols(const char* records, int count, CStringArray& symbols);

// Lets every list that holds one of the symbols, with or without its exchange, ask the service
// again.
void ResolveHolders(const OwnedLists& lists, const CStringArray& symbols);

} // namespace tq
