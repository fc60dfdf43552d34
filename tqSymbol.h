// tqSymbol: watch lists and symbol resolution for a quote-and-order terminal. This header brings in
// the whole interface; each class has a header of its own, with its conventions at the top.
//
//   CTQSymbolListMgr   manager/TQSymbolListMgr.h    the user's lists: the one object that a
//                                                      terminal creates
//   CSymbolTableMgr    symboltable/SymbolTableMgr.h    the symbol tables behind it
//   CSymbolList        symbollist/SymbolList.h         one list
//   CGroupSet          groups/GroupSet.h               a group that the terminal pushes in
//   CListID            symbolid/ListID.h             what a page shows, as text
//   CIDConvert         symbolid/IDConvert.h         an id and its kind in one text
//   COptFutID          symbolid/OptFutID.h          combination orders of options and futures
//   SymbolInfo         platform/services/VLProxy.h     one symbol
//   GroupInfo          groups/GroupInfo.h              one group
//   TQFromUtf8 ...     platform/interface/TQSymbolText.h   text of a terminal in UTF-8, paths
//
// The library calls the terminal's services (platform/services/) and is not linked to them: the
// process that loads it provides them, on Windows as DLLs of their names.
#pragma once

#include "groups/GroupInfo.h"
#include "groups/GroupSet.h"
#include "manager/TQSymbolListMgr.h"
#include "manager/TQSymbolOwned.h"
#include "platform/interface/TQSymbolNames.h"
#include "platform/interface/TQSymbolStrings.h"
#include "platform/interface/TQSymbolText.h"
#include "symbolid/IDConvert.h"
#include "symbolid/ListID.h"
#include "symbolid/OptFutID.h"
#include "symbollist/SymbolList.h"
#include "symbollist/TQSymbolListInfo.h"
#include "symboltable/SymbolTableMgr.h"
