// The symbols that a typed text may mean to this user.
#pragma once

#include "dialogs/DialogSources.h"
#include "dialogs/search/SymbolRows.h"

namespace tq {

// The numbers of the exchanges that the user prefers, in that order, joined by ","; empty: none is
// preferred.
CString PreferredExchanges(CTQSymbolListMgr& manager);

struct SymbolQuery {
  CString text;
  CString market;    // the id of the market that is chosen, or empty
  CString exchanges; // PreferredExchanges
};

// The first of these that finds something:
//  - of a text with a "." in front the rest is an exchange's own code, and nothing else is tried,
//    whatever market is chosen;
//  - a text without any "." is a code of the market, if one is chosen;
//  - what the service finds on the preferred exchanges, in their order.
// The order of the records is the service's.
SymbolRows FindSymbols(const DialogSources& sources, const SymbolQuery& query);

} // namespace tq
