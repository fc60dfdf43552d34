// Adding symbols to a list by their ids, as text: what the symbol-data service does not know yet is
// kept.
#pragma once

#include <vector>

#include "platform/framework/CString.h"

namespace tq {

struct AddedSymbols {
  CString ids;               // the list's id string then; as it was when nothing was added
  std::vector<CString> held; // those that the list has already, in the order of the request
};

// Puts the entries of `symbols`, joined by ",", behind those of `ids`. A symbol that `ids` holds,
// whatever its letter case, is not added; one that is named twice is added once. Headings may
// repeat, and are added as they are. Linear, however many they are.
AddedSymbols AddSymbols(const CString& ids, const CString& symbols);

// Whether the list file carries all of `symbols`. It would not load again with one that it does
// not.
bool AreLoadable(const CString& symbols);

// Tells the user which of the symbols the list has already, each with its name.
void TellAddedTwice(const std::vector<CString>& held);

} // namespace tq
