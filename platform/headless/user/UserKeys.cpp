// The keyboard's part of UserInput.h.
#include <utility>

#include "platform/CodePage.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ListKeys.h"
#include "platform/framework/window/Mnemonic.h"
#include "platform/headless/user/EditText.h"
#include "platform/headless/user/Focus.h"
#include "platform/headless/user/UserInput.h"

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
  DialogAccess::Command(*edit.owner->object, edit.id, WindowEvent::TextChanged);
}

void PressInEdit(Control& edit, WindowKey key, WindowHeldKeys held) {
  if (key == WindowKey::A && held.control)
    return SelectText(edit);
  PutCaret(edit, key, held.shift);
  const bool changed = (key == WindowKey::Delete && DeleteForward(edit)) ||
                       (key == WindowKey::Space && TypeCharacter(edit, " "));
  if (changed)
    TellTextChanged(edit);
}

void PressInControl(Dialog& dialog, WindowKey key, WindowHeldKeys held) {
  if (held.alt && !(dialog.focus != nullptr && dialog.focus->HasRows()))
    return;
  if (HasFocusOn(dialog, ControlKind::Button) && key == WindowKey::Space)
    return Choose(dialog, dialog.focus->id);
  if (HasFocusOn(dialog, ControlKind::Edit))
    return PressInEdit(*dialog.focus, key, held);
  if (dialog.focus != nullptr && dialog.focus->HasRows())
    PressInRows(*dialog.focus, key, held);
}

WindowHeldKeys HeldBy(Modifier modifier) {
  return {modifier == Modifier::Shift, modifier == Modifier::Control, modifier == Modifier::Alt};
}

// With Alt the dialog hears of the keys that move up and down, and Enter, Escape and Tab are the
// system's.
bool IsOffered(WindowKey key, WindowHeldKeys held) {
  if (IsLetterKey(key) && !held.control)
    return false;
  return !held.alt || key == WindowKey::Up || key == WindowKey::Down;
}

void PressInDialog(Dialog& dialog, WindowKey key, WindowHeldKeys held) {
  if (key == WindowKey::Enter)
    PressEnter(dialog);
  else if (key == WindowKey::Escape)
    Choose(dialog, CDialog::Cancelled);
  else if (key == WindowKey::Tab)
    FocusNext(dialog, held.shift);
  else
    PressInControl(dialog, key, held);
}

// A letter without anything held.
bool TypeLetter(Dialog& dialog, char letter) {
  const char text[] = {letter, '\0'};
  if (HasFocusOn(dialog, ControlKind::Edit))
    return TypeText(dialog.handle, text);
  const bool isMeant = dialog.focus == nullptr || HasFocusOn(dialog, ControlKind::Button);
  if (isMeant)
    PressMnemonic(dialog, AsMnemonic(letter));
  return isMeant;
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

bool PressKey(WindowHandle handle, WindowKey key, Modifier modifier) {
  Dialog* const dialog = Listening(handle);
  if (dialog == nullptr)
    return false;
  const WindowHeldKeys held = HeldBy(modifier);
  if (!IsOffered(key, held))
    return true;
  const int id = dialog->focus == nullptr ? 0 : dialog->focus->id;
  if (DialogAccess::KeyDown(*dialog->object, id, key, held))
    return true;
  if (Listening(handle) != nullptr)
    PressInDialog(*dialog, key, held);
  return true;
}

namespace {

bool PressWithControl(WindowHandle handle, char letter) {
  for (const auto& [known, key] :
       {std::pair{'A', WindowKey::A}, {'Y', WindowKey::Y}, {'Z', WindowKey::Z}}) {
    if (letter == known)
      return PressKey(handle, key, Modifier::Control);
  }
  return false;
}

} // namespace

bool PressLetter(WindowHandle handle, char letter, Modifier modifier) {
  Dialog* const dialog = Listening(handle);
  if (dialog == nullptr || AsMnemonic(letter) == '\0')
    return false;
  if (modifier == Modifier::Control)
    return PressWithControl(handle, AsMnemonic(letter));
  if (modifier != Modifier::Alt)
    return TypeLetter(*dialog, letter);
  PressMnemonic(*dialog, AsMnemonic(letter));
  return true;
}

} // namespace tq::headless
