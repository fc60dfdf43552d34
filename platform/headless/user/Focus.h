// The focus as the user moves it, and what the keys of a dialog mean. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// Moves the focus, with the events of the edits that lose and gain it. False when a handler ended
// the dialog or moved the focus elsewhere: then the action that moved it has no further effect.
TQFRAMEWORK_API bool MoveFocus(Control& control);
// Tab: the next control that can take it, or the one before.
void FocusNext(Dialog& dialog, bool backwards);
// If the control has the focus and can no longer have it, moves the focus to the next one, without
// events.
void LeaveIfClosed(const Control& control);
// Selects all of an edit's text, as when it gets the focus by key or program.
void SelectText(Control& control);

// OnOK or OnCancel, unless the template has that button and it is disabled.
void Choose(Dialog& dialog, int id);
// Alt and the letter. False when it leads nowhere.
bool PressMnemonic(Dialog& dialog, char letter);

// A key in the list that has the focus. False when it is none of a list's keys.
bool PressInRows(Control& list, WindowKey key, WindowHeldKeys held);

} // namespace tq::headless
