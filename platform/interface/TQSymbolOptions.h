// What a terminal may set when it starts the library.
#pragma once

#include "platform/interface/TQSymbolVersion.h"

class CStringArray;

// The second form of CTQSymbolListMgr::Init: named, and with the values that most terminals want.
// Texts and arrays are the caller's and are copied.
struct TQInitOptions {
  // Of the headers that the terminal was compiled with. Leave it: Init refuses a terminal that is
  // newer than the library.
  int version = TQSYMBOL_VERSION;
  // Where the list file is, without a trailing backslash. Null or empty: no file is read or
  // written.
  const char* dataDirectory = nullptr;
  // Handed to the symbol-data service with every symbol search.
  int bCN = 0;
  bool buildTables = true;  // the symbol tables, from the symbol-data service
  bool systemLists = false; // add the six system lists
  // Their names in order; null: the library's own.
  const CStringArray* systemListNames = nullptr;
  bool userDefaultExchanges = false; // the default exchanges are the user's own
  bool accountLists = false;         // keep lists from trading accounts
};

// Takes one line of the library's log: `context` as it was given, the level, and the text without a
// line feed, in the process's ANSI code page, which is the library's and good until the call
// returns. It is called on the thread that called the library, from within an operation, and may
// call the library itself. It must not throw.
using TQLogCallback = void (*)(void* context, int level, const char* text);

// What happens to mistakes of the terminal's and of its services (CTQSymbolListMgr::SetDebugMode).
enum TQDebugMode : int {
  TQDebugOff = 0,  // nothing is looked for
  TQDebugLog = 1,  // each is a line in the log, and the program goes on
  TQDebugStop = 2, // the process is stopped at the first, with the line on its error stream
};
