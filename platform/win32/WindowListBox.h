// What list boxes keep that their own operations move: caret, anchor, scrolling. Internal.
#pragma once

#include <windows.h>

namespace tq {

// A message to a list box whose notifications are not heard; LB_ERR without a box.
int AskBox(HWND box, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

bool IsMultiBox(HWND box);
int RowsInSightOf(HWND box); // whole ones
int AnchorOf(HWND box);      // the row from which Shift selects
void PutAnchor(HWND box, int row);

// Keeps the caret row, the anchor, what is scrolled to and, in a box of one selection, what is
// selected, with their rows. Made before a change, told of the row that came or went, and put back
// by Restore.
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
