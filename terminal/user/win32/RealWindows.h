// What the mouse and the keyboard ask of real windows.
#pragma once

#include <windows.h>

#include "terminal/user/UserActions.h"

namespace standin::actions {

// Dialog for whatever is no control of a template.
tq::ControlKind KindOf(HWND window);
bool IsList(HWND control);
// A dialog that is up, in front of the others and not ended.
bool IsOpen(HWND dialog);
// A control in such a dialog that takes the mouse or the keyboard.
bool IsReachable(HWND control);

} // namespace standin::actions
