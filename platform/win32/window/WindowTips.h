// The tips of a dialog's controls and of the rows of its list boxes. Internal.
#pragma once

#include "platform/win32/window/WindowRun.h"

namespace tq {

// The text that the tip window shows on a control; null takes it away.
void SetTip(Run& run, HWND control, wchar_t* text);

// Whether a list box shows tips of its rows.
void SetRowTips(Run& run, HWND box, bool on);
bool HasRowTips(HWND box);

// The tip window asks what to show: the text of the row under the mouse.
void GiveRowTip(Run& run, const NMHDR& header);
// Tells the tip window what the mouse does, before anybody else hears of it. It could listen itself
// (TTF_SUBCLASS), but then every message of such a control, each row that a list box is given too,
// would make its way through the system's chain of listeners.
void TellTips(Run& run, const MSG& message);

} // namespace tq
