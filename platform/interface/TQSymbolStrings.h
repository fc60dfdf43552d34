// The library's string table. On Windows the entries are also string resources of the DLL, in
// languages 1028 and 2052, under the module handle that the library passes to tqShowDllMessage;
// elsewhere modules have no resources, and this is the way to an entry whose number a terminal is
// given. What each entry is for stands in strings.md.
#pragma once

#include "tqSymbolApi.h"

// Entries that terminals know: numbers and texts do not change. Those from 48201 on are the
// library's own and may change.
enum TQStringEntries : unsigned {
  TQFirstString = 48001,
  TQLastString = 48102,
};

// The text of entry `id` in Traditional (`traditional` non-zero) or Simplified Chinese: UTF-8,
// NUL-terminated, static. Null when there is no such entry. Any thread. TQFromUtf8
// (TQSymbolText.h) makes a text of the process's code page of it.
extern "C" TQSYMBOL_API const char* tqSymbolString(unsigned id, int traditional) noexcept;
