#include "platform/framework/window/ListKeys.h"

#include <algorithm>

namespace tq {

namespace {

bool IsListKey(WindowKey key, WindowHeldKeys held) {
  switch (key) {
  case WindowKey::Space:
  case WindowKey::Up:
  case WindowKey::Down:
  case WindowKey::Home:
  case WindowKey::End:
  case WindowKey::PageUp:
  case WindowKey::PageDown:
    return !held.alt;
  case WindowKey::A:
    return held.control && !held.alt;
  default:
    return false;
  }
}

// Where the key moves the caret.
int TargetOf(const KeyedList& list, WindowKey key, bool leavesCaret) {
  const int caret = list.Caret();
  const int last = list.Count() - 1;
  const int page = std::max(1, list.RowsInSight() - 1); // one row stays in sight
  switch (key) {
  case WindowKey::Up:
    return leavesCaret ? caret : std::max(0, caret - 1);
  case WindowKey::Down:
    return leavesCaret ? caret : std::min(last, caret + 1);
  case WindowKey::PageUp:
    return std::max(0, caret - page);
  case WindowKey::PageDown:
    return std::min(last, caret + page);
  case WindowKey::Home:
    return 0;
  case WindowKey::End:
    return last;
  default:
    return caret;
  }
}

bool IsOnlyRange(const KeyedList& list, int first, int last) {
  if (list.CountSelected() != last - first + 1)
    return false;
  int row = first;
  while (row <= last && list.IsSelected(row))
    ++row;
  return row > last;
}

ListKeyResult SelectRange(KeyedList& list, int from, int to) {
  const auto [first, last] = std::minmax(from, to);
  const bool same = IsOnlyRange(list, first, last);
  if (!same)
    list.SelectOnlyRange(first, last);
  return same ? ListKeyResult::Nothing : ListKeyResult::Selected;
}

ListKeyResult SelectOne(KeyedList& list, int row) {
  const bool same = list.CountSelected() == 1 && list.IsSelected(row);
  list.SelectOnly(row);
  list.SetAnchor(row);
  return same ? ListKeyResult::Nothing : ListKeyResult::Selected;
}

ListKeyResult SelectAll(KeyedList& list) {
  const int caret = list.Caret();
  const int anchor = list.Anchor();
  const ListKeyResult result = SelectRange(list, 0, list.Count() - 1);
  list.SetAnchor(anchor);
  list.SetCaret(caret);
  return result;
}

ListKeyResult Turn(KeyedList& list, int row) {
  list.TurnSelection(row);
  list.SetAnchor(row);
  list.SetCaret(row);
  return ListKeyResult::Selected;
}

ListKeyResult ExtendTo(KeyedList& list, int row) {
  const int anchor = list.Anchor();
  const ListKeyResult result = SelectRange(list, anchor, row);
  list.SetAnchor(anchor);
  list.SetCaret(row);
  return result;
}

} // namespace

ListKeyResult PressInList(KeyedList& list, WindowKey key, WindowHeldKeys held) {
  if (!IsListKey(key, held))
    return ListKeyResult::Unknown;
  if (list.Count() == 0)
    return ListKeyResult::Nothing;
  const bool several = list.TakesSeveral();
  if (key == WindowKey::A)
    return several ? SelectAll(list) : ListKeyResult::Nothing;
  const bool shift = several && held.shift;
  const bool control = several && held.control && !shift;
  if (key == WindowKey::Space && control)
    return Turn(list, list.Caret());
  const int row = TargetOf(list, key, list.CountSelected() == 0 && !control && !shift);
  if (shift)
    return ExtendTo(list, row);
  const ListKeyResult result = control ? ListKeyResult::Nothing : SelectOne(list, row);
  list.SetCaret(row);
  return result;
}

} // namespace tq
