// What keys do in a list, the same for every kind of window. The rules are in CListBox.h. Internal.
#pragma once

#include "platform/framework/window/WindowTypes.h"

namespace tq {

// Those that come only with Control.
constexpr bool IsLetterKey(WindowKey key) {
  return key >= WindowKey::A;
}

// The list that keys act on. Row numbers given to it are valid.
class KeyedList {
public:
  virtual ~KeyedList() = default;
  virtual bool TakesSeveral() const = 0;
  virtual int Count() const = 0;
  virtual int RowsInSight() const = 0;
  virtual int CountSelected() const = 0;
  virtual bool IsSelected(int row) const = 0;
  virtual int Caret() const = 0;
  virtual int Anchor() const = 0; // the row from which Shift selects

  virtual void SelectOnly(int row) = 0;
  virtual void SelectOnlyRange(int first, int last) = 0; // `first` is not the greater one
  virtual void TurnSelection(int row) = 0;
  // Both come behind what is selected. The caret is scrolled to.
  virtual void SetAnchor(int row) = 0;
  virtual void SetCaret(int row) = 0;
};

// A combo box returns this for RowsInSight: the system decides how many rows its list shows.
inline constexpr int kComboPage = 10;

enum class ListKeyResult {
  Unknown,  // not a key of lists
  Nothing,  // selects what is selected already
  Selected, // another selection
};

ListKeyResult PressInList(KeyedList& list, WindowKey key, WindowHeldKeys held);

} // namespace tq
