// The keyboard's part of UserInput.h.
#include "platform/CodePage.h"
#include "platform/framework/DialogAccess.h"
#include "platform/headless/EditText.h"
#include "platform/headless/Focus.h"
#include "platform/headless/UserInput.h"

namespace tq::headless {

namespace {

Dialog* Listening(WindowHandle handle) {
  Dialog* const dialog = FindDialog(handle);
  const bool is = dialog != nullptr && dialog->enabled && dialog->visible &&
                  !DialogAccess::HasEnded(*dialog->object);
  return is ? dialog : nullptr;
}

bool HasFocusOn(const Dialog& dialog, ControlKind kind) {
  return dialog.focus != nullptr && dialog.focus->kind == kind && dialog.focus->TakesInput();
}

Control* DefaultButton(const Dialog& dialog) {
  for (const auto& control : dialog.controls) {
    if (control->kind == ControlKind::Button && (control->style & TemplateDefault) != 0)
      return control.get();
  }
  return nullptr;
}

void PressEnter(Dialog& dialog) {
  Control* const button =
      HasFocusOn(dialog, ControlKind::Button) ? dialog.focus : DefaultButton(dialog);
  Choose(dialog, button == nullptr ? CDialog::Accepted : button->id);
}

void TellTextChanged(const Control& edit) {
  DialogAccess::Command(*edit.owner->object, edit.id, ControlEvent::TextChanged);
}

void PressInControl(Dialog& dialog, Key key) {
  if (HasFocusOn(dialog, ControlKind::Button) && key == Key::Space)
    return Choose(dialog, dialog.focus->id);
  if (!HasFocusOn(dialog, ControlKind::Edit)) {
    if (dialog.focus != nullptr && key != Key::Space && key != Key::Delete)
      MoveCaret(*dialog.focus, key);
    return;
  }
  Control& edit = *dialog.focus;
  PutCaret(edit, key);
  const bool changed = (key == Key::Delete && DeleteForward(edit)) ||
                       (key == Key::Space && TypeCharacter(edit, " "));
  if (changed)
    TellTextChanged(edit);
}

} // namespace

bool TypeText(WindowHandle handle, const char* text) {
  Dialog* const dialog = Listening(handle);
  if (dialog == nullptr || !HasFocusOn(*dialog, ControlKind::Edit))
    return false;
  Control* const edit = dialog->focus;
  const CString all(text);
  const char* const end = all.GetString() + all.GetLength();
  for (const char* at = all.GetString(); at != end; at = NextChar(at, end)) {
    if (Listening(handle) == nullptr || dialog->focus != edit || !edit->TakesInput())
      break;
    if (TypeCharacter(*edit, CString(at, static_cast<int>(CharLength(at, end)))))
      TellTextChanged(*edit);
  }
  return true;
}

bool PressKey(WindowHandle handle, Key key) {
  Dialog* const dialog = Listening(handle);
  if (dialog == nullptr)
    return false;
  const int id = dialog->focus == nullptr ? 0 : dialog->focus->id;
  if (DialogAccess::KeyDown(*dialog->object, id, key))
    return true;
  if (Listening(handle) == nullptr)
    return true;
  if (key == Key::Enter)
    PressEnter(*dialog);
  else if (key == Key::Escape)
    Choose(*dialog, CDialog::Cancelled);
  else if (key == Key::Tab)
    FocusNext(*dialog);
  else
    PressInControl(*dialog, key);
  return true;
}

} // namespace tq::headless
