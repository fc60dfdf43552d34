// tqSymbol: watch lists and symbol resolution for a quote-and-order terminal. This header brings in
// the whole interface; each class has a header of its own, with its conventions at the top.
//
//   CTQSymbolListMgr   TQSymbolListMgr.h    the user's lists: the one object a terminal creates
//   CSymbolTableMgr    SymbolTableMgr.h     the symbol tables behind it
//   CSymbolList        SymbolList.h         one list
//   CGroupSet          GroupSet.h           a group that the terminal pushes in
//   CListID            ListID.h             what a page shows, as text
//   CIDConvert         IDConvert.h          an id and its kind in one text
//   COptFutID          OptFutID.h           combination orders of options and futures
//   SymbolInfo         VLRecords.h          one symbol
//   GroupInfo          GroupInfo.h          one group
//   TQListKindUser ... TQSymbolNames.h      names for kinds, types, codes and bits
//   TQProblem ...      TQSymbolProblem.h    why an operation failed
//   TQInitOptions ...  TQSymbolOptions.h    how the library starts, where its log goes
//   tqSymbolVersion    TQSymbolVersion.h    versions of headers and libraries
//   TQFromUtf8 ...     TQSymbolText.h       text of a terminal in UTF-8, paths
//   tqSymbolString     TQSymbolStrings.h    the library's texts by number
//   TQOwnedLists ...   TQSymbolOwned.h      owners for what is handed out
//
// The library calls the terminal's services and is not linked to them: the process that loads it
// provides them, on Windows as DLLs of their names.
#pragma once

#include "groups/GroupInfo.h"
#include "groups/GroupSet.h"
#include "manager/TQSymbolListMgr.h"
#include "manager/TQSymbolOwned.h"
#include "platform/interface/TQSymbolNames.h"
#include "platform/interface/TQSymbolOptions.h"
#include "platform/interface/TQSymbolProblem.h"
#include "platform/interface/TQSymbolStrings.h"
#include "platform/interface/TQSymbolText.h"
#include "platform/interface/TQSymbolVersion.h"
#include "symbolid/IDConvert.h"
#include "symbolid/ListID.h"
#include "symbolid/OptFutID.h"
#include "symbollist/SymbolList.h"
#include "symbollist/TQSymbolListInfo.h"
#include "symboltable/SymbolTableMgr.h"
