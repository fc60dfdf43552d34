// The library's string table, for terminals on systems whose modules have no resources. On Windows
// the same entries are also string resources of the DLL, in languages 1028 and 2052, under the
// module handle that the library passes to tqShowDllMessage.
#pragma once

#include "tqSymbolApi.h"

// The text of entry `id` in Traditional (`traditional` non-zero) or Simplified Chinese: UTF-8,
// NUL-terminated, static. Null when there is no such entry. Terminals know entries 48001 to 48102;
// those from 48201 on are internal and may change. Any thread.
extern "C" TQSYMBOL_API const char* tqSymbolString(unsigned id, int traditional);
