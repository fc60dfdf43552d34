#include "platform/win32/window/WindowListKeys.h"

#include <algorithm>

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ListKeys.h"
#include "platform/win32/window/WindowListBox.h"
#include "platform/win32/window/WindowListView.h"

namespace tq {

namespace {

class BoxKeys : public KeyedList {
public:
  explicit BoxKeys(HWND box) : box_(box) {}
  bool TakesSeveral() const override { return IsMultiBox(box_.GetSafeHwnd()); }
  int Count() const override { return box_.GetCount(); }
  int RowsInSight() const override { return RowsInSightOf(box_.GetSafeHwnd()); }
  int CountSelected() const override { return box_.GetSelCount(); }
  bool IsSelected(int row) const override { return box_.IsSelected(row); }
  int Caret() const override { return box_.GetCaretIndex(); }
  int Anchor() const override { return AnchorOf(box_.GetSafeHwnd()); }

  void SelectOnly(int row) override { box_.SetCurSel(row); }
  void SelectOnlyRange(int first, int last) override {
    box_.SetCurSel(-1);
    box_.SelectRange(first, last);
  }
  void TurnSelection(int row) override { box_.SelectRow(row, !box_.IsSelected(row)); }
  void SetAnchor(int row) override { PutAnchor(box_.GetSafeHwnd(), row); }
  void SetCaret(int row) override {
    box_.SetCaretIndex(row);
    box_.EnsureVisible(row);
  }

private:
  CListBox box_;
};

class ViewKeys : public KeyedList {
public:
  explicit ViewKeys(HWND view) : view_(view) {}
  bool TakesSeveral() const override { return true; }
  int Count() const override { return view_.GetRowCount(); }
  int RowsInSight() const override { return RowsInSightOfView(view_.GetSafeHwnd()); }
  int CountSelected() const override { return view_.GetSelectedCount(); }
  bool IsSelected(int row) const override { return view_.IsSelected(row); }
  int Caret() const override { return CaretOfView(view_.GetSafeHwnd()); }
  int Anchor() const override { return AnchorOfView(view_.GetSafeHwnd()); }

  void SelectOnly(int row) override { view_.SetCurSel(row); }
  void SelectOnlyRange(int first, int last) override {
    SelectRangeOfView(view_.GetSafeHwnd(), first, last);
  }
  void TurnSelection(int row) override { view_.SelectRow(row, !view_.IsSelected(row)); }
  void SetAnchor(int row) override { PutAnchorOfView(view_.GetSafeHwnd(), row); }
  void SetCaret(int row) override {
    PutCaretOfView(view_.GetSafeHwnd(), row);
    view_.EnsureVisible(row);
  }

private:
  CListCtrl view_;
};

// A closed box: what is chosen is what the keys move.
class ComboKeys : public KeyedList {
public:
  explicit ComboKeys(HWND combo) : combo_(combo) {}
  bool TakesSeveral() const override { return false; }
  int Count() const override { return combo_.GetCount(); }
  int RowsInSight() const override { return kComboPage; }
  int CountSelected() const override { return combo_.GetCurSel() == -1 ? 0 : 1; }
  bool IsSelected(int row) const override { return combo_.GetCurSel() == row; }
  int Caret() const override { return std::max(0, combo_.GetCurSel()); }
  int Anchor() const override { return Caret(); }

  void SelectOnly(int row) override { combo_.SetCurSel(row); }
  void SelectOnlyRange(int first, int) override { combo_.SetCurSel(first); }
  void TurnSelection(int) override {}
  void SetAnchor(int) override {}
  void SetCaret(int) override {}

private:
  CComboBox combo_;
};

ListKeyResult Press(HWND control, WindowKey key, WindowHeldKeys held) {
  switch (KindOf(control)) {
  case ControlKind::ListBox: {
    BoxKeys box(control);
    return PressInList(box, key, held);
  }
  case ControlKind::ListView: {
    ViewKeys view(control);
    return PressInList(view, key, held);
  }
  case ControlKind::ComboBox: {
    ComboKeys combo(control); // Space chooses nothing
    return key == WindowKey::Space ? ListKeyResult::Nothing : PressInList(combo, key, held);
  }
  default:
    return ListKeyResult::Unknown;
  }
}

} // namespace

bool PressInListControl(Run& run, HWND control, WindowKey key, WindowHeldKeys held) {
  const ListKeyResult result = Press(control, key, held);
  const int id = ::GetDlgCtrlID(control);
  if (result == ListKeyResult::Selected && KindOf(control) == ControlKind::ListView)
    DialogAccess::Notify(*run.dialog, id, {WindowListNotice::Kind::SelectionChanged, -1});
  else if (result == ListKeyResult::Selected)
    DialogAccess::Command(*run.dialog, id, WindowEvent::SelectionChanged);
  return result != ListKeyResult::Unknown;
}

} // namespace tq
