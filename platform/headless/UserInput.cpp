#include "platform/headless/UserInput.h"

#include "platform/framework/CListCtrl.h"
#include "platform/framework/DialogAccess.h"
#include "platform/headless/Focus.h"
#include "platform/headless/Queue.h"

namespace tq::headless {

namespace {

bool IsOpen(const Dialog& dialog) {
  return dialog.enabled && dialog.visible && !DialogAccess::HasEnded(*dialog.object);
}

// The control, if the mouse can reach it.
Control* Reach(WindowHandle handle) {
  Control* const control = FindControl(handle);
  return control != nullptr && IsOpen(*control->owner) && control->TakesFocus() ? control : nullptr;
}

Control* ReachRows(WindowHandle handle, int row) {
  Control* const control = Reach(handle);
  if (control == nullptr)
    return nullptr;
  const bool isView = control->kind == ControlKind::ListView;
  const bool isBox = control->kind == ControlKind::ListBox;
  const bool rowIsThere = control->rows.At(row) != nullptr || (isView && row == -1);
  return (isView || isBox) && rowIsThere ? control : nullptr;
}

// What a click with this modifier selects. True when the selection is another one now.
bool SelectByMouse(Control& control, int row, Modifier modifier) {
  Rows& rows = control.rows;
  std::vector<int> before;
  for (int at = rows.NextSelected(-1); at != -1; at = rows.NextSelected(at))
    before.push_back(at);
  if (row == -1 || modifier == Modifier::None || !control.IsMulti())
    rows.SelectOnly(row);
  else if (modifier == Modifier::Control)
    rows.Select(row, !rows.At(row)->selected);
  else
    rows.SelectRange(control.anchor, row);
  rows.SetCaret(row);
  if (modifier != Modifier::Shift && row != -1)
    control.anchor = row;
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
    DialogAccess::Command(object, control.id, ControlEvent::SelectionChanged);
  else if (changed)
    DialogAccess::Notify(object, control.id, {ListNotice::Kind::SelectionChanged, -1});
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

bool Click(WindowHandle handle) {
  Control* const control = Reach(handle);
  if (control == nullptr)
    return false;
  if (control->kind == ControlKind::Edit)
    control->selectionStart = control->selectionEnd = control->text.GetLength();
  if (MoveFocus(*control) && control->kind == ControlKind::Button)
    DialogAccess::Command(*control->owner->object, control->id, ControlEvent::Clicked);
  return true;
}

bool ClickRow(WindowHandle handle, int row, Modifier modifier) {
  Control* const control = ReachRows(handle, row);
  if (control == nullptr)
    return false;
  if (MoveFocus(*control))
    TellSelection(*control, SelectByMouse(*control, row, modifier));
  return true;
}

bool DoubleClickRow(WindowHandle handle, int row, Modifier modifier) {
  if (!ClickRow(handle, row, modifier))
    return false;
  Control* const control = ReachRows(handle, row);
  if (control == nullptr) // the first click changed the rows or ended the dialog
    return true;
  CDialog& object = *control->owner->object;
  if (control->kind == ControlKind::ListBox)
    DialogAccess::Command(object, control->id, ControlEvent::DoubleClicked);
  else
    DialogAccess::Notify(object, control->id, {ListNotice::Kind::DoubleClicked, row});
  return true;
}

bool HoverRow(WindowHandle handle, int row) {
  Control* const control = ReachRows(handle, row);
  if (control == nullptr || (control->listStyles & CListCtrl::HoverSelect) == 0 || row == -1)
    return false;
  TellSelection(*control, SelectByMouse(*control, row, Modifier::None));
  return true;
}

bool PickEntry(WindowHandle handle, int index) {
  Control* const control = Reach(handle);
  if (control == nullptr || control->kind != ControlKind::ComboBox ||
      control->rows.At(index) == nullptr)
    return false;
  if (!MoveFocus(*control))
    return true;
  control->rows.SelectOnly(index);
  DialogAccess::Command(*control->owner->object, control->id, ControlEvent::SelectionChanged);
  return true;
}

bool CloseByTitleBar(WindowHandle handle) {
  Dialog* const dialog = FindDialog(handle);
  if (dialog == nullptr || !IsOpen(*dialog))
    return false;
  Choose(*dialog, CDialog::Cancelled);
  return true;
}

} // namespace tq::headless
