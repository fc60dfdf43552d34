#include "platform/headless/Focus.h"

#include <algorithm>

#include "platform/framework/DialogAccess.h"

namespace tq::headless {

namespace {

void Tell(Control& control, ControlEvent event) {
  if (control.kind == ControlKind::Edit)
    DialogAccess::Command(*control.owner->object, control.id, event);
}

int RowBehindKey(const Control& control, Key key) {
  const int last = control.rows.Count() - 1;
  const int from =
      control.kind == ControlKind::ComboBox ? control.rows.NextSelected(-1) : control.rows.Caret();
  // In a list where nothing is selected the first key only shows where the caret is.
  const bool fresh = control.rows.CountSelected() == 0 && control.kind != ControlKind::ComboBox;
  switch (key) {
  case Key::Home:
    return 0;
  case Key::End:
    return last;
  case Key::Up:
    return fresh ? from : std::max(0, from - 1);
  default:
    return fresh ? from : std::min(last, from + 1);
  }
}

} // namespace

bool MoveFocus(Control& control) {
  Dialog& dialog = *control.owner;
  Control* const before = dialog.focus;
  if (before == &control)
    return true;
  dialog.focus = &control;
  if (before != nullptr)
    Tell(*before, ControlEvent::FocusLost);
  if (dialog.focus != &control || DialogAccess::HasEnded(*dialog.object))
    return false;
  Tell(control, ControlEvent::FocusGained);
  return dialog.focus == &control && !DialogAccess::HasEnded(*dialog.object);
}

void FocusNext(Dialog& dialog) {
  const size_t count = dialog.controls.size();
  size_t at = 0;
  while (at < count && dialog.controls[at].get() != dialog.focus)
    ++at;
  for (size_t step = 1; step <= count; ++step) {
    Control& next = *dialog.controls[(at + step) % count];
    if (!next.TakesFocus())
      continue;
    next.selectionStart = 0;
    next.selectionEnd = next.kind == ControlKind::Edit ? next.text.GetLength() : 0;
    MoveFocus(next);
    return;
  }
}

void Choose(Dialog& dialog, int id) {
  const Control* const button = dialog.Find(id);
  if (button == nullptr || button->enabled)
    DialogAccess::Command(*dialog.object, id, ControlEvent::Clicked);
}

void MoveCaret(Control& control, Key key) {
  const bool hasRows = control.kind == ControlKind::ListBox ||
                       control.kind == ControlKind::ComboBox ||
                       control.kind == ControlKind::ListView;
  if (!hasRows || control.rows.Count() == 0)
    return;
  const int before = control.rows.NextSelected(-1);
  const bool alone = control.rows.CountSelected() == 1;
  const int row = RowBehindKey(control, key);
  control.rows.SelectOnly(row);
  control.anchor = row;
  if (before == row && alone)
    return;
  CDialog& object = *control.owner->object;
  if (control.kind == ControlKind::ListView)
    DialogAccess::Notify(object, control.id, {ListNotice::Kind::SelectionChanged, -1});
  else
    DialogAccess::Command(object, control.id, ControlEvent::SelectionChanged);
}

} // namespace tq::headless
