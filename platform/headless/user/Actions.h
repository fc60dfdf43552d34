// What the mouse and the keys mean to windows in memory, whether a program acts as the user or a
// screen says what the user did. Handlers have returned when an action returns. Internal.
#pragma once

#include "platform/headless/Windows.h"
#include "platform/headless/user/UserInput.h"

namespace tq::headless {

// Whether a dialog hears the user; whether the mouse can act on a control of it.
TQFRAMEWORK_API bool IsOpen(const Dialog& dialog);
TQFRAMEWORK_API bool TakesMouse(const Control& control);

// Row -1 is beside the rows, which is nowhere in a list box.
inline constexpr int kBeside = -1;

// A press on a row: the focus, then the selection. False when it has no effect.
TQFRAMEWORK_API bool PressOnRow(Control& list, int row, Modifier modifier);
// The second press of a double-click.
TQFRAMEWORK_API void PressAgainOnRow(Control& list, int row);
// The mouse has rested on a row of a list view for its hover time.
TQFRAMEWORK_API void RestOnRow(Control& list, int row);
inline constexpr unsigned kSystemHoverTime = 400; // ms, of list views without a time of their own

// A button that was pressed and let go; an entry that was picked of an open combo box.
TQFRAMEWORK_API void ClickButton(Control& button);
TQFRAMEWORK_API void PickOf(Control& combo, int index);
// The user has changed the text of an edit.
TQFRAMEWORK_API void TellTextChanged(const Control& edit);
// The title bar's button.
TQFRAMEWORK_API void CloseByUser(Dialog& dialog);

// A key. False when it is left to the control that has the focus.
TQFRAMEWORK_API bool TakeKey(Dialog& dialog, WindowKey key, WindowHeldKeys held);
// A letter or digit with nothing held or with Alt. False when it leads nowhere.
TQFRAMEWORK_API bool TakeLetter(Dialog& dialog, char letter, bool alt);

} // namespace tq::headless
