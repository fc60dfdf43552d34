// The library's own texts, as shown to the user.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// Numbers of string table entries.
inline constexpr unsigned kStringCode = 48006;
inline constexpr unsigned kStringName = 48007;
inline constexpr unsigned kStringAllMarkets = 48008;
inline constexpr unsigned kStringAllSymbols = 48009;
inline constexpr unsigned kMessageSaveFailed = 48026;
inline constexpr unsigned kStringUpdate = 48028;
inline constexpr unsigned kStringFirstSystemList = 48033; // the first of six
inline constexpr unsigned kStringSystemList = 48039;      // behind the name of one
inline constexpr unsigned kStringAllHoldings = 48041;
inline constexpr unsigned kStringFirstProduct =
    48044; // the first of three; formats with a list's number
inline constexpr unsigned kStringCloudList = 48047;
inline constexpr unsigned kStringFirstCloudId = 48049;

// Entry `id` in the terminal's interface language and the process's ANSI code page; characters that
// the code page lacks become "?". Empty when there is no such entry.
CString LibraryString(unsigned id);

} // namespace tq
