// The library's own texts, as they are shown to the user.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// Entries of the string table that are asked for by number.
inline constexpr unsigned kStringAllSymbols = 48009;
inline constexpr unsigned kMessageSaveFailed = 48026;
inline constexpr unsigned kStringUpdate = 48028;
inline constexpr unsigned kStringFirstSystemList = 48033; // and five more
inline constexpr unsigned kStringAllHoldings = 48041;
inline constexpr unsigned kStringFirstProduct =
    48044; // and two more, formats with the list's number
inline constexpr unsigned kStringCloudList = 48047;
inline constexpr unsigned kStringFirstCloudId = 48049;

// Entry `id` in the terminal's interface language and the process's ANSI code page; a character
// that the code page lacks is "?". Empty for an entry that the table does not have.
CString LibraryString(unsigned id);

} // namespace tq
