// Names for the numbers and texts that the interface takes and hands out as plain ones. Operations
// keep their `int` and text parameters: manager.GetSymbolListCount(TQListKindUser).
//
// All values are stored by terminals, written to files or compared by other programs: they do not
// change, and new ones are only added.
#pragma once

// The kinds of lists that CTQSymbolListMgr has; any other kind has none.
enum TQListKind : int {
  TQListKindUser = 1,
  TQListKindTrading = 6, // from trading accounts
  TQListKindCloud = 8,
};

// Group types that mean something to this library. What the others are is the symbol-data service's
// affair.
enum TQGroupType : int {
  TQGroupTypeMarkets = 1,          // a search for symbols is narrowed down to one of these
  TQGroupTypeHoldings = 3,         // the selection offers them when it is told to
  TQGroupTypeEditionMarkets = 101, // as 1, for editions with TQExtraInfoEditionMarkets
  TQGroupTypeCloud = 201,          // the cloud lists as groups
};

// What the selection (DoSelectUI) hands out as kind. They are the values of ListIDType (ListID.h),
// too.
enum TQSelectKind : int {
  TQSelectUserList = 1,         // the text is the list's identifier, also for 6 and 8
  TQSelectGroup = 2,            // of TQGroupTypeMarkets: the text is "group,sub-group", names
  TQSelectHoldingsGroup = 3,    // of TQGroupTypeHoldings, likewise
  TQSelectAllSymbols = 4,       // the text is what the dialog calls them
  TQSelectTradingList = 6,      // a list from a trading account
  TQSelectEditionGroup = 7,     // of TQGroupTypeEditionMarkets, as 2
  TQSelectCloudListOrGroup = 8, // a cloud list; or a group of TQGroupTypeCloud, as 2
};

// What dialogs return. EndDomodal may end one with any other code.
enum TQDialogEnd : int {
  TQDialogFailed = -1, // the dialog could not be created, or was refused
  TQDialogDone = 1,    // the user has chosen
  TQDialogCancelled = 2,
};

// The products whose lists DoLoadOtherProductList takes over (import-file.md).
enum TQImportProduct : int {
  TQImportPellarPlus = 0,
  TQImportEOrvel = 1, // that of LoadOtherProductList
  TQImportETamsin = 2,
};

// The bits of CheckIDandName.
enum TQIdAndNameBits : int {
  TQIdExists = 1,
  TQNameMatches = 2, // the list with that id bears the name
};

// The bits of CheckValidSymbolList: why a list with that id cannot be added.
enum TQIdProblemBits : int {
  TQIdTaken = 1,
  TQIdTooLong = 2,
  TQIdUnloadable = 4, // it holds what the list file cannot carry
};

// The codes with which the library calls TQSCall (notifications.md).
enum TQNotification : int {
  TQNotifySymbols = 4,    // symbols were added, or names of lists or groups changed
  TQNotifyUserLists = 40, // or a list from a trading account changed
  TQNotifyCloudLists = 41,
};

// The reasons of those calls; the empty text is one, too.
inline constexpr char TQReasonListCount[] = "ListCntChange";
inline constexpr char TQReasonListNames[] = "ListNameChange";
inline constexpr char TQReasonTradingLists[] = "TSSymbolList";

// The levels of the library's lines in the log.
enum TQLogLevel : int {
  TQLogChange = 64, // lists and groups changed, or something was wrong with them
  TQLogGeneral = 256,
  TQLogMistakes = 512, // what the debug mode finds
};

// The list of kind 6 with the holdings of all accounts, by its identifier.
inline constexpr char TQListIdAllHoldings[] = "ALLMYSTOCKLISTS";

// The text for AddExtraTQInfo by which dialogs offer the markets of TQGroupTypeEditionMarkets.
inline constexpr char TQExtraInfoEditionMarkets[] = "OTV01";
