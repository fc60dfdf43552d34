#include "platform/headless/user/Focus.h"

#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/Mnemonic.h"

namespace tq::headless {

namespace {

void Tell(Control& control, WindowEvent event) {
  if (control.kind == ControlKind::Edit)
    DialogAccess::Command(*control.owner->object, control.id, event);
}

// The index of the control among the dialog's; their count when it is none of them.
size_t IndexOf(const Dialog& dialog, const Control* control) {
  size_t at = 0;
  while (at < dialog.controls.size() && dialog.controls[at].get() != control)
    ++at;
  return at;
}

// The first control behind `from` (or before it), continuing at the other end, that can take the
// focus; null when there is none but itself.
Control* NextOf(const Dialog& dialog, const Control* from, bool backwards) {
  const size_t count = dialog.controls.size();
  if (count == 0)
    return nullptr;
  size_t at = IndexOf(dialog, from);
  if (at == count) // from nowhere to the first, or to the last
    at = backwards ? 0 : count - 1;
  for (size_t step = 1; step <= count; ++step) {
    Control& next = *dialog.controls[(at + (backwards ? count - step : step)) % count];
    if (&next != from && next.TakesFocus())
      return &next;
  }
  return nullptr;
}

// The control that the letter leads to, or null.
Control* FindMnemonic(const Dialog& dialog, char letter) {
  const size_t count = dialog.controls.size();
  const size_t from = IndexOf(dialog, dialog.focus);
  for (size_t step = 1; step <= count; ++step) {
    Control& each = *dialog.controls[(from + step) % count];
    const bool isLabel = each.kind == ControlKind::Label;
    const bool hasLetter = isLabel || each.kind == ControlKind::Button;
    if (hasLetter && each.TakesInput() && MnemonicOf(each.text) == letter)
      return isLabel ? NextOf(dialog, &each, false) : &each;
  }
  return nullptr;
}

} // namespace

bool MoveFocus(Control& control) {
  Dialog& dialog = *control.owner;
  Control* const before = dialog.focus;
  if (before == &control)
    return true;
  dialog.focus = &control;
  if (before != nullptr)
    Tell(*before, WindowEvent::FocusLost);
  if (dialog.focus != &control || DialogAccess::HasEnded(*dialog.object))
    return false;
  Tell(control, WindowEvent::FocusGained);
  return dialog.focus == &control && !DialogAccess::HasEnded(*dialog.object);
}

void SelectText(Control& control) {
  control.selectionStart = 0;
  control.selectionEnd = control.kind == ControlKind::Edit ? control.text.GetLength() : 0;
}

void FocusNext(Dialog& dialog, bool backwards) {
  Control* const next = NextOf(dialog, dialog.focus, backwards);
  if (next == nullptr)
    return;
  SelectText(*next);
  MoveFocus(*next);
}

void LeaveIfClosed(const Control& control) {
  Dialog& dialog = *control.owner;
  if (dialog.focus != &control || control.TakesFocus())
    return;
  dialog.focus = NextOf(dialog, &control, false);
  if (dialog.focus != nullptr)
    SelectText(*dialog.focus);
}

void Choose(Dialog& dialog, int id) {
  const Control* const button = dialog.Find(id);
  if (button == nullptr || button->enabled)
    DialogAccess::Command(*dialog.object, id, WindowEvent::Clicked);
}

bool PressMnemonic(Dialog& dialog, char letter) {
  Control* const target = letter == '\0' ? nullptr : FindMnemonic(dialog, letter);
  if (target == nullptr)
    return false;
  if (target != dialog.focus)
    SelectText(*target);
  if (MoveFocus(*target) && target->kind == ControlKind::Button)
    Choose(dialog, target->id);
  return true;
}

} // namespace tq::headless
