// The keys of lists on real windows, by the rules of CListBox.h. Internal.
#pragma once

#include "platform/win32/window/WindowRun.h"

namespace tq {

// Handles a key in a list box, list view or closed combo box, with its events. False for other
// controls, and for keys that those do not use.
bool PressInListControl(Run& run, HWND control, WindowKey key, WindowHeldKeys held);

} // namespace tq
