// What the symbol-data service finds for a text.
#pragma once

#include <utility>

#include "platform/ServiceArray.h"
#include "platform/framework/CString.h"

namespace tq {

// The symbols of all exchanges that the text may mean, in the service's order; none when it fails.
// `bCN` is the terminal's switch for Simplified Chinese names.
inline ServiceArray<SymbolInfo> FindOnAllExchanges(const CString& text, int bCN) {
  constexpr int kAllExchanges = -1;
  ServiceArray<SymbolInfo> found("VLFindSymbol");
  if (VLFindSymbol(text, found.List(), found.Count(), 0, bCN, kAllExchanges) == 0)
    return ServiceArray<SymbolInfo>("VLFindSymbol");
  return found;
}

} // namespace tq
