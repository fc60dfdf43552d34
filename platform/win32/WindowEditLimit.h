// The limit of an edit in bytes. The control's own counts characters, which a name that is stored
// in so many bytes cannot use. Internal.
#pragma once

#include <windows.h>

namespace tq {

// 0 is no limit.
void SetEditLimit(HWND edit, int bytes);
int GetEditLimit(HWND edit);

} // namespace tq
