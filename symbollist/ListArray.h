// An array of lists that the manager owns, as CSymbolList pointers in display order.
#pragma once

#include "platform/framework/CPtrArray.h"
#include "symbollist/SymbolList.h"

namespace tq {

inline CSymbolList* ListAt(const CPtrArray& lists, int index) {
  return static_cast<CSymbolList*>(lists.GetAt(index));
}

// Position of the first list with that identifier (ignoring letter case), or -1.
int FindListById(const CPtrArray& lists, const char* id);

// Whether `list` is among the lists still; `position` is where it was. For walks on which the
// service is asked, for the terminal may then add, delete or replace lists.
bool IsAmong(const CPtrArray& lists, const CSymbolList* list, int position);

// Whether the two arrays hold, position by position, lists of the same name (letter case counts)
// and the same symbol string.
bool SameNamesAndContents(const CPtrArray& left, const CPtrArray& right);

// Deletes every list and empties the array.
void DestroyLists(CPtrArray& lists);

} // namespace tq
