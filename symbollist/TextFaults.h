// What names of lists and symbol strings have against being stored.
#pragma once

#include "platform/framework/CString.h"
#include "platform/interface/TQSymbolProblem.h"

namespace tq {

// Bits of TQTextFault; 0 for a name that a list takes over as it is.
int FaultsOfName(const CString& name);
// The same for ids joined by ",". Headings count as ids, but for their length.
int FaultsOfSymbols(const CString& symbols);

} // namespace tq
