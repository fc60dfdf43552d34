// The identifiers of lists, and those of the six lists that are the terminal's own.
#pragma once

#include "platform/framework/CString.h"
#include "symbollist/TQSymbolListInfo.h"

namespace tq {

// The longest identifier, in bytes.
inline constexpr int kListIdLimit = sizeof(TQSymbolListInfo::ID) - 1;

// Whether a list would keep this identifier unchanged: it can be stored, and it is not too long. A
// changed identifier would make a second list of the same one at the next update.
bool IsKeptWhole(const CString& id);

// The identifier of a new list: `id` or, when that is empty, a new GUID; empty when the system has
// none to give.
CString IdOfNewList(const CString& id);

inline constexpr int kSystemListCount = 6;

// "ZUSYSLIST1" to "ZUSYSLIST6". Persisted in list files: do not change.
const char* SystemListId(int index);

// Whether `id` is one of the six, case-sensitively. Decides the Flag that is written to the file.
bool IsSystemListId(const char* id);

// The same, ignoring letter case. Decides what is a system list after loading. The two differ on
// purpose: a list whose id has another letter case works as a system list and yet is written back
// with Flag='0', as it always was.
bool IsSystemListIdNoCase(const char* id);

} // namespace tq
