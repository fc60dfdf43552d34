#include "terminal/user/UserActions.h"

#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/user/UserInput.h"

namespace standin::actions {

namespace {

tq::headless::Modifier Same(Modifier modifier) {
  return static_cast<tq::headless::Modifier>(modifier);
}
static_assert(static_cast<int>(tq::headless::Modifier::Shift) == static_cast<int>(Modifier::Shift));
static_assert(static_cast<int>(tq::headless::Modifier::Alt) == static_cast<int>(Modifier::Alt));

} // namespace

std::vector<ControlView> ControlsOf(WindowHandle dialog) {
  std::vector<ControlView> views;
  for (const tq::headless::ControlView& view : tq::headless::ControlsOf(dialog))
    views.push_back({view.handle, view.kind});
  return views;
}

bool Click(WindowHandle control) {
  return tq::headless::Click(control);
}

bool ClickRow(WindowHandle control, int row, Modifier modifier) {
  return tq::headless::ClickRow(control, row, Same(modifier));
}

bool DoubleClickRow(WindowHandle control, int row, Modifier modifier) {
  return tq::headless::DoubleClickRow(control, row, Same(modifier));
}

bool HoverRow(WindowHandle control, int row) {
  return tq::headless::HoverRow(control, row);
}

bool PickEntry(WindowHandle control, int index) {
  return tq::headless::PickEntry(control, index);
}

bool TypeText(WindowHandle dialog, const char* ansi) {
  return tq::headless::TypeText(dialog, ansi);
}

bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier) {
  return tq::headless::PressKey(dialog, key, Same(modifier));
}

bool PressLetter(WindowHandle dialog, char letter, Modifier modifier) {
  return tq::headless::PressLetter(dialog, letter, Same(modifier));
}

bool IsRowInSight(WindowHandle control, int row) {
  return tq::headless::IsRowInSight(control, row);
}

bool CloseByTitleBar(WindowHandle dialog) {
  return tq::headless::CloseByTitleBar(dialog);
}

void Settle() {
  while (tq::ServeMessage(tq::Serve::Messages)) {
  }
}

bool ServeNext() {
  constexpr unsigned kPatience = 10000; // milliseconds
  return tq::headless::ServeWithin(kPatience);
}

} // namespace standin::actions
