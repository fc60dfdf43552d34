// State of list boxes that their own operations change: caret, anchor, scrolling. Internal.
#pragma once

#include <windows.h>

namespace tq {

// Sends a message to a list box with its notifications muted; LB_ERR without a box.
int AskBox(HWND box, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

bool IsMultiBox(HWND box);
int RowsInSightOf(HWND box); // whole ones
int AnchorOf(HWND box);      // the row from which Shift selects
void PutAnchor(HWND box, int row);

// Keeps caret, anchor, scroll position and, in a single-selection box, the selection with their
// rows. Construct it before a change, tell it the inserted or deleted row, and call Restore.
class KeepPlace {
public:
  explicit KeepPlace(HWND box);
  void RowCame(int row);
  void RowWent(int row);
  void SelectNone() { selected_ = -1; }
  void Restore() const;

private:
  HWND box_;
  bool multi_;
  int selected_; // -1 in a box of several selections, which keeps its own
  int caret_;
  int anchor_;
  int top_;
};

} // namespace tq
