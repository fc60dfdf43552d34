#include "terminal/user/User.h"

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "terminal/StandIn.h"

namespace standin {

namespace {

bool Settled(bool done) {
  actions::Settle();
  return done;
}

std::string RowOfView(const CListCtrl& view, int row) {
  std::string text = Utf8(view.GetCellText(row, 0));
  for (int column = 1; column < view.GetColumnCount(); ++column)
    text += " | " + Utf8(view.GetCellText(row, column));
  return text;
}

template <class LIST> std::vector<int> Selection(const LIST& list) {
  std::vector<int> rows;
  for (int row = list.GetNextSelected(-1); row != -1; row = list.GetNextSelected(row))
    rows.push_back(row);
  return rows;
}

} // namespace

std::string Utf8(const CString& text) {
  return FromAnsi(std::string_view(text.GetString(), static_cast<size_t>(text.GetLength())));
}

tq::ControlKind User::KindOf(int id) const {
  const WindowHandle handle = Control(id).GetSafeHwnd();
  for (const actions::ControlView& view : actions::ControlsOf(dialog_.GetSafeHwnd())) {
    if (view.handle == handle)
      return view.kind;
  }
  return tq::ControlKind::Dialog;
}

bool User::Click(int id) {
  return IsUp() && Settled(actions::Click(Control(id).GetSafeHwnd()));
}

bool User::ClickRow(int id, int row, Modifier modifier) {
  return IsUp() && Settled(actions::ClickRow(Control(id).GetSafeHwnd(), row, modifier));
}

bool User::DoubleClick(int id, int row, Modifier modifier) {
  return IsUp() && Settled(actions::DoubleClickRow(Control(id).GetSafeHwnd(), row, modifier));
}

bool User::Hover(int id, int row) {
  return IsUp() && Settled(actions::HoverRow(Control(id).GetSafeHwnd(), row));
}

bool User::Select(int id, int index) {
  if (KindOf(id) != tq::ControlKind::ComboBox)
    return ClickRow(id, index);
  return IsUp() && Settled(actions::PickEntry(Control(id).GetSafeHwnd(), index));
}

bool User::Select(int id, const std::string& text) {
  const std::vector<std::string> rows = Rows(id);
  for (size_t i = 0; i < rows.size(); ++i) {
    if (rows[i] == text)
      return Select(id, static_cast<int>(i));
  }
  return false;
}

bool User::Type(const std::string& text) {
  const std::string ansi = ToAnsi(text);
  return IsUp() && Settled(actions::TypeText(dialog_.GetSafeHwnd(), ansi.c_str()));
}

bool User::Fill(int id, const std::string& text) {
  if (KindOf(id) != tq::ControlKind::Edit || !Click(id))
    return false;
  CEdit(dialog_, id).SelectAll();
  return Type(text.empty() ? "\b" : text);
}

bool User::Press(WindowKey key, Modifier modifier) {
  return IsUp() && Settled(actions::PressKey(dialog_.GetSafeHwnd(), key, modifier));
}

bool User::PressLetter(char letter, Modifier modifier) {
  return IsUp() && Settled(actions::PressLetter(dialog_.GetSafeHwnd(), letter, modifier));
}

bool User::CloseByTitleBar() {
  return IsUp() && Settled(actions::CloseByTitleBar(dialog_.GetSafeHwnd()));
}

std::vector<std::string> User::Rows(int id) const {
  std::vector<std::string> rows;
  const tq::ControlKind kind = KindOf(id);
  const CListCtrl view(dialog_, id);
  const CListBox box(dialog_, id);
  const CComboBox combo(dialog_, id);
  if (kind == tq::ControlKind::ListView) {
    for (int row = 0; row < view.GetRowCount(); ++row)
      rows.push_back(RowOfView(view, row));
  } else if (kind == tq::ControlKind::ListBox) {
    for (int row = 0; row < box.GetCount(); ++row)
      rows.push_back(Utf8(box.GetItemText(row)));
  } else if (kind == tq::ControlKind::ComboBox) {
    for (int index = 0; index < combo.GetCount(); ++index)
      rows.push_back(Utf8(combo.GetItemText(index)));
  }
  return rows;
}

std::vector<int> User::SelectedRows(int id) const {
  switch (KindOf(id)) {
  case tq::ControlKind::ListView:
    return Selection(CListCtrl(dialog_, id));
  case tq::ControlKind::ListBox:
    return Selection(CListBox(dialog_, id));
  case tq::ControlKind::ComboBox: {
    const int chosen = CComboBox(dialog_, id).GetCurSel();
    return chosen == -1 ? std::vector<int>() : std::vector<int>{chosen};
  }
  default:
    return {};
  }
}

bool User::IsInSight(int id, int row) const {
  return actions::IsRowInSight(Control(id).GetSafeHwnd(), row);
}

std::string User::Text(int id) const {
  return Utf8(Control(id).GetText());
}

std::string User::Title() const {
  return Utf8(dialog_.GetText());
}

std::string User::ToolTip(int id) const {
  return Utf8(dialog_.GetToolTip(id));
}

bool User::IsEnabled(int id) const {
  return Control(id).IsWindowEnabled();
}

bool User::IsVisible(int id) const {
  return Control(id).IsWindowVisible();
}

bool User::HasFocus(int id) const {
  return Control(id).HasFocus();
}

bool User::WaitFor(const std::function<bool()>& condition) {
  while (IsUp()) {
    if (condition())
      return true;
    if (!actions::ServeNext())
      return false;
  }
  return false;
}

} // namespace standin
