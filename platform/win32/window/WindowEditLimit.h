// The limit of an edit in bytes, for names that are stored in a number of bytes. The control's own
// limit counts characters. Internal.
#pragma once

#include <windows.h>

namespace tq {

// 0 is no limit.
void SetEditLimit(HWND edit, int bytes);
int GetEditLimit(HWND edit);

} // namespace tq
