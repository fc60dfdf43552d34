// What a user can do to windows in memory, with all consequences. For programs that act as the
// user; the library does not call it.
//
// An operation that the user could not do returns false and does nothing: the dialog is not up or
// lies behind another, the control is disabled, hidden or of another kind, the row does not exist,
// or another control covers the point of the mouse (the centre of the control or row). When an
// operation returns, handlers have returned; messages that they posted are still waiting.
#pragma once

#include <vector>

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogTemplate.h"

namespace tq::headless {

enum class Modifier { None, Control, Shift, Alt };

// The controls of a dialog in the order of its template.
struct ControlView {
  WindowHandle handle;
  ControlKind kind;
};
TQFRAMEWORK_API std::vector<ControlView> ControlsOf(WindowHandle dialog);

// The number of existing windows, dialogs and controls: the same after a run as before it.
TQFRAMEWORK_API size_t WindowCount();

// A click on a button or an edit. The focus goes there.
TQFRAMEWORK_API bool Click(WindowHandle control);
// A click on a row of a list box or list view, scrolled to when it is not in sight; -1 is beside
// the rows, which is not there while they fill the list.
TQFRAMEWORK_API bool ClickRow(WindowHandle control, int row, Modifier modifier);
TQFRAMEWORK_API bool DoubleClickRow(WindowHandle control, int row, Modifier modifier);
// The mouse rests on a row of a list view for its hover time; timers go on meanwhile.
TQFRAMEWORK_API bool HoverRow(WindowHandle control, int row);
// Whether a row of a list box or list view can be seen without scrolling.
TQFRAMEWORK_API bool IsRowInSight(WindowHandle control, int row);
// Drops a combo box down and picks an entry.
TQFRAMEWORK_API bool PickEntry(WindowHandle control, int index);
// Types into the edit that has the focus, a character at a time, until the dialog has ended or the
// focus is somewhere else; "\b" takes back.
TQFRAMEWORK_API bool TypeText(WindowHandle dialog, const char* text);
TQFRAMEWORK_API bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier);
// A letter or digit; with Control only A, Y and Z. Without Control and Alt not where a list has the
// focus: lists in memory know no letters.
TQFRAMEWORK_API bool PressLetter(WindowHandle dialog, char letter, Modifier modifier);
TQFRAMEWORK_API bool CloseByTitleBar(WindowHandle dialog);

// Delivers the next message or timer. False when none will come: without a screen at once, with one
// when nothing has come for so many milliseconds.
TQFRAMEWORK_API bool ServeWithin(unsigned patience);

} // namespace tq::headless
