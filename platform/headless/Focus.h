// The focus as the user moves it, and what the keys of a dialog mean. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// The focus goes there, with the events of the edits that lose and gain it. False when a handler ended the
// dialog or moved the focus on.
bool MoveFocus(Control& control);
// Tab: the next control that can take it.
void FocusNext(Dialog& dialog);

// OnOK or OnCancel, unless the template has that button and it is disabled.
void Choose(Dialog& dialog, int id);

// A key in the control that has the focus.
void MoveCaret(Control& control, Key key);

} // namespace tq::headless
