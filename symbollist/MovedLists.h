// Lists whose symbols went over to another exchange: ids of old lists have the exchange of before.
#pragma once

#include <functional>
#include <memory>

#include "platform/framework/CPtrArray.h"
#include "symbollist/OwnedLists.h"

namespace tq {

// Renames the moved symbols of an id string; true when it changed. Asks the symbol tables of the
// moment, which the lists do not own.
using RenameMoved = std::function<bool(CString& ids)>;

// Renames the moved symbols of a list and resolves it; true when it changed.
bool RenameMovedIn(CSymbolList& list, const RenameMoved& rename);

// A copy with the moved symbols renamed in both lists. In the source too, on purpose: a dialog
// goes on showing what was stored. The source may be one of the manager's own lists, which the
// terminal can delete while the service is asked; it is not looked at after that.
std::unique_ptr<CSymbolList> CopyMoved(CSymbolList& source, const RenameMoved& rename);

// The same for each of `sources`, CSymbolList pointers of which a null one is passed over.
ListVector CopyAllMoved(const CPtrArray& sources, const RenameMoved& rename);

} // namespace tq
