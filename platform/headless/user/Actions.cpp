#include "platform/headless/user/Actions.h"

#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ListKeys.h"
#include "platform/framework/window/Mnemonic.h"
#include "platform/headless/user/Focus.h"

namespace tq::headless {

namespace {

// Selects what a press with this modifier selects. True when the selection changed.
bool SelectByMouse(Control& control, int row, Modifier modifier) {
  Rows& rows = control.rows;
  std::vector<int> before;
  for (int at = rows.NextSelected(-1); at != -1; at = rows.NextSelected(at))
    before.push_back(at);
  if (row == kBeside || !control.IsMulti() ||
      (modifier != Modifier::Control && modifier != Modifier::Shift))
    rows.SelectOnly(row);
  else if (modifier == Modifier::Control)
    rows.Select(row, !rows.IsSelected(row));
  else
    rows.SelectRange(rows.Anchor(), row);
  rows.SetCaret(row);
  if (modifier != Modifier::Shift && row != kBeside)
    rows.SetAnchor(row);
  size_t same = 0;
  for (int at = rows.NextSelected(-1); at != -1; at = rows.NextSelected(at)) {
    if (same == before.size() || before[same++] != at)
      return true;
  }
  return same != before.size();
}

void TellSelection(Control& control, bool changed) {
  CDialog& object = *control.owner->object;
  if (control.kind == ControlKind::ListBox)
    DialogAccess::Command(object, control.id, WindowEvent::SelectionChanged);
  else if (changed)
    DialogAccess::Notify(object, control.id, {WindowListNotice::Kind::SelectionChanged, -1});
}

// Beside the rows of a list box there is nothing.
bool IsNowhere(const Control& list, int row) {
  return row == kBeside && list.kind == ControlKind::ListBox;
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

bool PressInControl(Dialog& dialog, WindowKey key, WindowHeldKeys held) {
  const bool inRows = dialog.focus != nullptr && dialog.focus->HasRows();
  if (inRows)
    return PressInRows(*dialog.focus, key, held);
  if (!held.alt && key == WindowKey::Space && HasFocusOn(dialog, ControlKind::Button)) {
    Choose(dialog, dialog.focus->id);
    return true;
  }
  return false;
}

// With Alt the dialog hears of the keys that move up and down, and Enter, Escape and Tab are the
// system's.
bool IsOffered(WindowKey key, WindowHeldKeys held) {
  if (IsLetterKey(key) && !held.control)
    return false;
  return !held.alt || key == WindowKey::Up || key == WindowKey::Down;
}

bool PressInDialog(Dialog& dialog, WindowKey key, WindowHeldKeys held) {
  if (key == WindowKey::Enter)
    PressEnter(dialog);
  else if (key == WindowKey::Escape)
    Choose(dialog, CDialog::Cancelled);
  else if (key == WindowKey::Tab)
    FocusNext(dialog, held.shift);
  else
    return PressInControl(dialog, key, held);
  return true;
}

} // namespace

bool IsOpen(const Dialog& dialog) {
  return dialog.enabled && dialog.visible && !DialogAccess::HasEnded(*dialog.object);
}

bool TakesMouse(const Control& control) {
  return IsOpen(*control.owner) && control.TakesFocus();
}

bool PressOnRow(Control& list, int row, Modifier modifier) {
  if (!MoveFocus(list) || IsNowhere(list, row))
    return false;
  TellSelection(list, SelectByMouse(list, row, modifier));
  return true;
}

void PressAgainOnRow(Control& list, int row) {
  if (!MoveFocus(list) || IsNowhere(list, row))
    return;
  CDialog& object = *list.owner->object;
  if (list.kind == ControlKind::ListBox)
    DialogAccess::Command(object, list.id, WindowEvent::DoubleClicked);
  else
    DialogAccess::Notify(object, list.id, {WindowListNotice::Kind::DoubleClicked, row});
}

void RestOnRow(Control& list, int row) {
  TellSelection(list, SelectByMouse(list, row, Modifier::None));
}

void ClickButton(Control& button) {
  DialogAccess::Command(*button.owner->object, button.id, WindowEvent::Clicked);
}

void PickOf(Control& combo, int index) {
  combo.rows.SelectOnly(index);
  DialogAccess::Command(*combo.owner->object, combo.id, WindowEvent::SelectionChanged);
}

void TellTextChanged(const Control& edit) {
  DialogAccess::Command(*edit.owner->object, edit.id, WindowEvent::TextChanged);
}

void CloseByUser(Dialog& dialog) {
  Choose(dialog, CDialog::Cancelled);
}

bool TakeKey(Dialog& dialog, WindowKey key, WindowHeldKeys held) {
  if (!IsOffered(key, held))
    return false;
  const int id = dialog.focus == nullptr ? 0 : dialog.focus->id;
  if (DialogAccess::KeyDown(*dialog.object, id, key, held) || !IsOpen(dialog))
    return true;
  return PressInDialog(dialog, key, held);
}

bool TakeLetter(Dialog& dialog, char letter, bool alt) {
  const char mnemonic = AsMnemonic(letter);
  const bool isMeant = alt || dialog.focus == nullptr || HasFocusOn(dialog, ControlKind::Button);
  return isMeant && PressMnemonic(dialog, mnemonic);
}

} // namespace tq::headless
