// The library's string table, for a terminal on a system whose modules carry no resources. On
// Windows the same entries are string resources of the DLL as well, in languages 1028 and 2052, and
// the handle that the library gives to tqShowDllMessage is where to load them from.
#pragma once

#include "tqSymbolApi.h"

// The text of entry `id` in Traditional (`traditional` non-zero) or Simplified Chinese: UTF-8,
// NUL-terminated, static. Null for an entry that the table does not have. Terminals know entries
// 48001 to 48102; those from 48201 on are the library's own and may change. Any thread.
extern "C" TQSYMBOL_API const char* tqSymbolString(unsigned id, int traditional);
