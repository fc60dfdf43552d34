// Which symbol table managers there are, for a caller who is handed one that may be gone: the one
// of a manager of lists ends with its next Init.
#pragma once

#include "platform/diagnostics/DebugMode.h"

class CSymbolTableMgr;

namespace tq {

void NoteMade(const CSymbolTableMgr* tables);
void NoteGone(const CSymbolTableMgr* tables);

// `tables`, or null when the debug mode knows that it is gone, which it reports as a mistake of
// that operation. While the mode is off, `tables`.
CSymbolTableMgr* LiveTables(const char* operation, CSymbolTableMgr* tables);

// Whether there are such tables, or nobody can tell.
bool AreLive(const CSymbolTableMgr* tables);

// CheckCall for an operation of the tables. False when they are gone behind it: the line of a
// mistake may let the terminal start anew.
template <typename... Texts>
bool CheckTables(const CSymbolTableMgr* tables, const char* operation, const char* names = "",
                 const Texts&... texts) {
  if (!IsDebugging()) [[likely]]
    return true;
  CheckCallNow(operation, names, texts...);
  return AreLive(tables);
}

} // namespace tq
