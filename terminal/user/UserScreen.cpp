// A dialog as text.
#include <algorithm>

#include "platform/framework/window/CButton.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "terminal/StandIn.h"
#include "terminal/user/User.h"

namespace standin {

namespace {

const char* NameOf(tq::ControlKind kind) {
  switch (kind) {
  case tq::ControlKind::Label:
    return "label";
  case tq::ControlKind::Button:
    return "button";
  case tq::ControlKind::Edit:
    return "edit";
  case tq::ControlKind::ListBox:
    return "list";
  case tq::ControlKind::ComboBox:
    return "combo";
  default:
    return "table";
  }
}

std::string IconOf(const CWnd& window) {
  static const char* const names[] = {"", " <up>", " <down>", " <left>", " <remove>", " <search>"};
  return names[static_cast<int>(CButton(window.GetSafeHwnd()).GetIcon())];
}

std::string StateOf(const CWnd& window) {
  std::string state;
  if (!window.IsWindowVisible())
    state += " (hidden)";
  if (!window.IsWindowEnabled())
    state += " (disabled)";
  if (window.HasFocus())
    state += " (focus)";
  return state;
}

std::string ColumnsOf(const CListCtrl& view) {
  std::string titles;
  for (int column = 0; column < view.GetColumnCount(); ++column)
    titles += (column == 0 ? " " : " | ") + Utf8(view.GetColumnTitle(column));
  return titles;
}

// How the dialog wants the row drawn.
std::string LookOf(CDialog& dialog, int id, int row) {
  const WindowItemLook look = tq::DialogAccess::Look(dialog, id, row);
  return std::string(look.marked ? "(*) " : "") + (look.bold ? "(bold) " : "");
}

std::string HeadOf(const actions::ControlView& control) {
  const CWnd window(control.handle);
  const int id = window.GetDlgCtrlID();
  std::string head = NameOf(control.kind) + (id > 0 ? " " + std::to_string(id) : "") + ":";
  if (control.kind == tq::ControlKind::ListView)
    head += ColumnsOf(CListCtrl(control.handle));
  else if (const std::string text = Utf8(window.GetText()); !text.empty())
    head += " " + text;
  if (control.kind == tq::ControlKind::Button)
    head += IconOf(window);
  return head + StateOf(window) + "\n";
}

} // namespace

std::string User::ScreenRows(int id, int most) const {
  const std::vector<std::string> rows = Rows(id);
  const std::vector<int> selected = SelectedRows(id);
  const int count = static_cast<int>(rows.size());
  std::string text;
  int row = 0;
  for (; row < count && row < most; ++row) {
    const bool isSelected = std::find(selected.begin(), selected.end(), row) != selected.end();
    text += isSelected ? "  > " : "    ";
    text += LookOf(dialog_, id, row) + rows[static_cast<size_t>(row)] + "\n";
  }
  return count == row ? text : text + "    and " + std::to_string(count - row) + " more\n";
}

std::string User::Screen(int rows) const {
  std::string screen = "=== " + Title() + "\n";
  for (const actions::ControlView& control : actions::ControlsOf(dialog_.GetSafeHwnd())) {
    screen += HeadOf(control);
    if (control.kind == tq::ControlKind::ListView || control.kind == tq::ControlKind::ListBox)
      screen += ScreenRows(CWnd(control.handle).GetDlgCtrlID(), rows);
  }
  return screen;
}

} // namespace standin
