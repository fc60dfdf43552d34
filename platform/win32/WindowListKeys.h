// The keys of lists on real windows, by the rules of CListBox.h. Internal.
#pragma once

#include "platform/win32/WindowRun.h"

namespace tq {

// A key in a list box, list view or closed combo box, with what the dialog hears of it. False when
// the control is none of them, and for keys that are not theirs.
bool PressInListControl(Run& run, HWND control, Key key, Held held);

} // namespace tq
