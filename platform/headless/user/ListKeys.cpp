// A list in memory as its keys see it.
#include "platform/framework/window/ListKeys.h"

#include <algorithm>

#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/user/Focus.h"

namespace tq::headless {

namespace {

class RowsOfControl : public KeyedList {
public:
  explicit RowsOfControl(Control& control)
      : rows_(control.rows), several_(control.IsMulti()),
        isCombo_(control.kind == ControlKind::ComboBox) {}
  bool TakesSeveral() const override { return several_; }
  int Count() const override { return rows_.Count(); }
  int RowsInSight() const override { return isCombo_ ? kComboPage : rows_.Page(); }
  int CountSelected() const override { return rows_.CountSelected(); }
  bool IsSelected(int row) const override { return rows_.IsSelected(row); }
  int Caret() const override {
    return isCombo_ ? std::max(0, rows_.NextSelected(-1)) : rows_.Caret();
  }
  int Anchor() const override { return rows_.Anchor(); }

  void SelectOnly(int row) override { rows_.SelectOnly(row); }
  void SelectOnlyRange(int first, int last) override { rows_.SelectRange(first, last); }
  void TurnSelection(int row) override { rows_.Select(row, !rows_.IsSelected(row)); }
  void SetAnchor(int row) override { rows_.SetAnchor(row); }
  void SetCaret(int row) override {
    rows_.SetCaret(row);
    rows_.Reveal(row);
  }

private:
  Rows& rows_;
  bool several_;
  bool isCombo_;
};

} // namespace

bool PressInRows(Control& list, WindowKey key, WindowHeldKeys held) {
  const bool isCombo = list.kind == ControlKind::ComboBox;
  if (isCombo && (key == WindowKey::Space || held.alt))
    return false;
  RowsOfControl rows(list);
  const ListKeyResult result = PressInList(rows, key, held);
  CDialog& object = *list.owner->object;
  if (result == ListKeyResult::Selected && list.kind == ControlKind::ListView)
    DialogAccess::Notify(object, list.id, {WindowListNotice::Kind::SelectionChanged, -1});
  else if (result == ListKeyResult::Selected)
    DialogAccess::Command(object, list.id, WindowEvent::SelectionChanged);
  return result != ListKeyResult::Unknown;
}

} // namespace tq::headless
