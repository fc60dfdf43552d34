// The library's own texts, as they are shown to the user.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// Entries of the string table that are asked for by number.
inline constexpr unsigned kStringAllSymbols = 48009;
inline constexpr unsigned kMessageSaveFailed = 48026;
inline constexpr unsigned kStringFirstSystemList = 48033; // and five more

// Entry `id` in the terminal's interface language and the process's ANSI code page; a character that the
// code page lacks is "?". Empty for an entry that the table does not have.
CString LibraryString(unsigned id);

} // namespace tq
