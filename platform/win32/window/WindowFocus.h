// The focus of a dialog: where it goes when a control cannot keep it, and how the user moves it.
// Internal.
#pragma once

#include "platform/win32/window/WindowRun.h"

namespace tq {

// Gives the control the focus without events; in a dialog that lies behind another one as soon as
// that one has ended.
void PutFocus(Run& run, HWND control);

// A scope around disabling or hiding a control: if that has the focus, the next control gets it, or
// none.
class FocusGoesOn {
public:
  explicit FocusGoesOn(HWND control);
  ~FocusGoesOn();
  FocusGoesOn(const FocusGoesOn&) = delete;
  FocusGoesOn& operator=(const FocusGoesOn&) = delete;

private:
  HWND dialog_ = nullptr; // none of whose controls can take the focus
};

// While a dialog is up on top of another one: keeps the focus of the other one.
class FocusBehind {
public:
  explicit FocusBehind(Run* outer);
  ~FocusBehind();
  FocusBehind(const FocusBehind&) = delete;
  FocusBehind& operator=(const FocusBehind&) = delete;

private:
  Run* outer_; // null: there is none
  HWND before_ = nullptr;
};

// Moves the focus for a click or letter of the user, with the events of losing and gaining it.
// False when it did not stay there or the dialog has ended: then the click or letter has no further
// effect.
bool MoveFocusByMouse(Run& run, HWND control);
bool MoveFocusByKey(Run& run, HWND control);

// Whether a mouse message, not yet delivered, has no effect; moves the focus for it.
bool IsMouseWithoutEffect(Run& run, const MSG& message);

} // namespace tq
