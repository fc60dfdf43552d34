// An array of lists that a dialog edits, as CSymbolList pointers in display order.
#pragma once

#include "platform/framework/CPtrArray.h"
#include "symbollist/SymbolList.h"

namespace tq {

inline CSymbolList* ListAt(const CPtrArray& lists, int index) {
  return static_cast<CSymbolList*>(lists.GetAt(index));
}

// Position of the first list with that identifier (ignoring letter case), or -1.
int FindListById(const CPtrArray& lists, const char* id);

// Deletes every list and empties the array.
void DestroyLists(CPtrArray& lists);

} // namespace tq
