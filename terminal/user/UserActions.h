// What the user's hands do, on one kind of windows: each system has its body. Users are
// in User.h.
//
// Each returns false when the user could not do it. Messages that follow are delivered by Settle.
#pragma once

#include <vector>

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogTemplate.h"

namespace standin {

enum class Modifier { None, Control, Shift, Alt };

namespace actions {

struct ControlView {
  WindowHandle handle;
  tq::ControlKind kind;
};
// In the order of the template.
std::vector<ControlView> ControlsOf(WindowHandle dialog);

bool Click(WindowHandle control);
bool ClickRow(WindowHandle control, int row, Modifier modifier);
bool DoubleClickRow(WindowHandle control, int row, Modifier modifier);
bool HoverRow(WindowHandle control, int row);
bool PickEntry(WindowHandle control, int index);
bool TypeText(WindowHandle dialog, const char* ansi);
bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier);
bool PressLetter(WindowHandle dialog, char letter, Modifier modifier);
bool IsRowInSight(WindowHandle control, int row);
bool CloseByTitleBar(WindowHandle dialog);

// Delivers what waits, timers excepted.
void Settle();
// Delivers the next message or timer; false when none will come.
bool ServeNext();

} // namespace actions

} // namespace standin
