#include "platform/headless/user/UserInput.h"

#include "platform/headless/Screen.h"
#include "platform/headless/user/Hands.h"

namespace tq::headless {

namespace {

Hands& Acting() {
  Screen* const screen = CurrentScreen();
  return screen == nullptr ? MemoryHands() : screen->UserHands();
}

} // namespace

std::vector<ControlView> ControlsOf(WindowHandle dialog) {
  std::vector<ControlView> views;
  if (const Dialog* const found = FindDialog(dialog)) {
    for (const auto& control : found->controls)
      views.push_back({control->handle, control->kind});
  }
  return views;
}

size_t WindowCount() {
  return NodeCount();
}

bool Click(WindowHandle control) {
  return Acting().Click(control);
}

bool ClickRow(WindowHandle control, int row, Modifier modifier) {
  return Acting().ClickRow(control, row, modifier);
}

bool DoubleClickRow(WindowHandle control, int row, Modifier modifier) {
  return Acting().DoubleClickRow(control, row, modifier);
}

bool HoverRow(WindowHandle control, int row) {
  return Acting().HoverRow(control, row);
}

bool IsRowInSight(WindowHandle control, int row) {
  return Acting().IsRowInSight(control, row);
}

bool PickEntry(WindowHandle control, int index) {
  return Acting().PickEntry(control, index);
}

bool TypeText(WindowHandle dialog, const char* text) {
  return Acting().TypeText(dialog, text);
}

bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier) {
  return Acting().PressKey(dialog, key, modifier);
}

bool PressLetter(WindowHandle dialog, char letter, Modifier modifier) {
  return Acting().PressLetter(dialog, letter, modifier);
}

bool CloseByTitleBar(WindowHandle dialog) {
  return Acting().CloseByTitleBar(dialog);
}

} // namespace tq::headless
