// What one list is called: the record that queries fill and the list itself begins with.
#pragma once

#include <cstddef>

#pragma pack(push, 1)
struct TQSymbolListInfo {
  char ID[37];   // list identifier, NUL-terminated, at most 36 bytes
  char Name[65]; // display name, NUL-terminated, at most 64 bytes, in the process's ANSI code page
};
#pragma pack(pop)

static_assert(sizeof(TQSymbolListInfo) == 102);
static_assert(offsetof(TQSymbolListInfo, Name) == 37);
