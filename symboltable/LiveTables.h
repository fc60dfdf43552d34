// Which symbol table managers there are, for a caller who is handed one that may be gone: the one
// of a manager of lists ends with its next Init.
#pragma once

class CSymbolTableMgr;

namespace tq {

void NoteMade(const CSymbolTableMgr* tables);
void NoteGone(const CSymbolTableMgr* tables);

// `tables`, or null when the debug mode knows that it is gone, which it reports as a mistake of
// that operation. While the mode is off, `tables`.
CSymbolTableMgr* LiveTables(const char* operation, CSymbolTableMgr* tables);

} // namespace tq
