#include "platform/headless/user/UserInput.h"

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/user/Focus.h"
#include "platform/headless/HitTest.h"
#include "platform/headless/Queue.h"

namespace tq::headless {

namespace {

constexpr int kBeside = -1;
constexpr unsigned kSystemHoverTime =
    400; // milliseconds, for list views without a time of their own

bool IsOpen(const Dialog& dialog) {
  return dialog.enabled && dialog.visible && !DialogAccess::HasEnded(*dialog.object);
}

// The control, if it accepts the mouse.
Control* FindOpen(WindowHandle handle) {
  Control* const control = FindControl(handle);
  return control != nullptr && IsOpen(*control->owner) && control->TakesFocus() ? control : nullptr;
}

// The control, if the mouse can reach it.
Control* Reach(WindowHandle handle) {
  Control* const control = FindOpen(handle);
  return control != nullptr && IsReached(*control) ? control : nullptr;
}

bool HasSpaceBeside(const Control& list) {
  return list.rows.Count() < list.rows.Page();
}

// The list, scrolled to the row, if the mouse can reach it.
Control* ReachRow(WindowHandle handle, int row) {
  Control* const list = FindOpen(handle);
  if (list == nullptr || !list->HasRows() || list->kind == ControlKind::ComboBox)
    return nullptr;
  if (row == kBeside)
    return HasSpaceBeside(*list) && IsRowReached(*list, list->rows.Page() - 1) ? list : nullptr;
  if (!list->rows.Holds(row))
    return nullptr;
  list->rows.Reveal(row);
  return IsRowReached(*list, row) ? list : nullptr;
}

// Selects what a click with this modifier selects. True when the selection changed.
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

// The button goes down on a row. False when it has no effect.
bool PressOnRow(Control& list, int row, Modifier modifier) {
  if (!MoveFocus(list) || IsNowhere(list, row))
    return false;
  TellSelection(list, SelectByMouse(list, row, modifier));
  return true;
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
  if (control == nullptr || control->HasRows())
    return false;
  if (control->kind == ControlKind::Edit)
    control->selectionStart = control->selectionEnd = control->text.GetLength();
  if (MoveFocus(*control) && control->kind == ControlKind::Button)
    DialogAccess::Command(*control->owner->object, control->id, WindowEvent::Clicked);
  return true;
}

bool ClickRow(WindowHandle handle, int row, Modifier modifier) {
  Control* const list = ReachRow(handle, row);
  if (list != nullptr)
    PressOnRow(*list, row, modifier);
  return list != nullptr;
}

bool DoubleClickRow(WindowHandle handle, int row, Modifier modifier) {
  if (!ClickRow(handle, row, modifier))
    return false;
  Control* const list = ReachRow(handle, row);
  // The first click may have changed the rows, ended the dialog, or had no effect.
  if (list == nullptr || !MoveFocus(*list) || IsNowhere(*list, row))
    return true;
  CDialog& object = *list->owner->object;
  if (list->kind == ControlKind::ListBox)
    DialogAccess::Command(object, list->id, WindowEvent::DoubleClicked);
  else
    DialogAccess::Notify(object, list->id, {WindowListNotice::Kind::DoubleClicked, row});
  return true;
}

bool HoverRow(WindowHandle handle, int row) {
  const Control* const found = row == kBeside ? nullptr : ReachRow(handle, row);
  if (found == nullptr || (found->listStyles & CListCtrl::HoverSelect) == 0)
    return false;
  Rest(found->hoverTime == 0 ? kSystemHoverTime : found->hoverTime);
  if (Control* const list = ReachRow(handle, row))
    TellSelection(*list, SelectByMouse(*list, row, Modifier::None));
  return true;
}

bool IsRowInSight(WindowHandle handle, int row) {
  const Control* const list = FindControl(handle);
  return list != nullptr && list->kind != ControlKind::ComboBox && list->rows.InSight(row);
}

bool PickEntry(WindowHandle handle, int index) {
  Control* const control = Reach(handle);
  if (control == nullptr || control->kind != ControlKind::ComboBox || !control->rows.Holds(index))
    return false;
  if (!MoveFocus(*control))
    return true;
  control->rows.SelectOnly(index);
  DialogAccess::Command(*control->owner->object, control->id, WindowEvent::SelectionChanged);
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
