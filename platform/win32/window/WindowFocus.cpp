#include "platform/win32/window/WindowFocus.h"

#include "platform/framework/window/DialogAccess.h"

namespace tq {

namespace {

void MakeFocus(HWND dialog, HWND control) {
  ::SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

bool LiesBehind(const Run& run) {
  return !::IsWindowEnabled(run.window);
}

HWND FocusOf(const Run& run) {
  return LiesBehind(run) ? run.focusBehind : ::GetFocus();
}

bool IsStill(const Run& run, HWND control) {
  return !DialogAccess::HasEnded(*run.dialog) && ::GetFocus() == control;
}

bool IsBesideRows(HWND box, LPARAM point) {
  const LRESULT count = ::SendMessageW(box, LB_GETCOUNT, 0, 0);
  RECT last{};
  if (count > 0)
    ::SendMessageW(box, LB_GETITEMRECT, static_cast<WPARAM>(count - 1),
                   reinterpret_cast<LPARAM>(&last));
  return static_cast<short>(HIWORD(point)) >= last.bottom;
}

} // namespace

void PutFocus(Run& run, HWND control) {
  const Silence silence;
  if (LiesBehind(run))
    run.focusBehind = control;
  else
    MakeFocus(run.window, control);
}

FocusGoesOn::FocusGoesOn(HWND control) {
  const HWND dialog = ::GetParent(control);
  Run* const run = FindRun(dialog);
  if (run == nullptr || control == nullptr || FocusOf(*run) != control)
    return;
  const HWND next = ::GetNextDlgTabItem(dialog, control, FALSE);
  if (next != nullptr && next != control)
    PutFocus(*run, next);
  else if (LiesBehind(*run))
    run->focusBehind = dialog;
  else
    dialog_ = dialog;
}

FocusGoesOn::~FocusGoesOn() {
  const Silence silence;
  if (dialog_ != nullptr)
    ::SetFocus(dialog_);
}

FocusBehind::FocusBehind(Run* outer) : outer_(outer) {
  const HWND focus = ::GetFocus();
  if (outer_ != nullptr && ::IsChild(outer_->window, focus))
    outer_->focusBehind = before_ = focus;
}

// If nothing changed, the system restores the focus itself, and the caret keeps its position.
FocusBehind::~FocusBehind() {
  if (outer_ == nullptr || outer_->window == nullptr)
    return;
  const Silence silence;
  const HWND focus = outer_->focusBehind;
  outer_->focusBehind = nullptr;
  if (focus == before_ || focus == nullptr)
    return;
  if (focus == outer_->window)
    ::SetFocus(focus);
  else
    MakeFocus(outer_->window, focus);
}

bool MoveFocusByMouse(Run& run, HWND control) {
  if (::GetFocus() != control)
    ::SetFocus(control);
  return IsStill(run, control);
}

bool MoveFocusByKey(Run& run, HWND control) {
  if (::GetFocus() != control)
    MakeFocus(run.window, control);
  return IsStill(run, control);
}

bool IsMouseWithoutEffect(Run& run, const MSG& message) {
  const bool isPress = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
  if (!isPress || ::GetParent(message.hwnd) != run.window)
    return false;
  const ControlKind kind = KindOf(message.hwnd);
  if (kind == ControlKind::Label || kind == ControlKind::Dialog)
    return false;
  if (!MoveFocusByMouse(run, message.hwnd))
    return true;
  return kind == ControlKind::ListBox && IsBesideRows(message.hwnd, message.lParam);
}

} // namespace tq
