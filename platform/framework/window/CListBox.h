// CListBox: a list of text rows, of which the user selects one or, where the template says so,
// several.
//
// One row is the caret row, from which the keys start. It is the first of an empty list that gets
// rows, and stays with its row when others come and go. When it is deleted, the row behind it is
// the caret row, or the last one. The keys, in list views as well:
//  - Up, Down, PageUp, PageDown, Home and End move the caret row, scroll to it and select it alone.
//    Where no row is selected, Up and Down stay on the caret row and select that.
//  - Space selects the caret row alone.
//  - In a list of several selections Shift and these keys select from the row that was last
//    selected without Shift (by a click, by a key, by SetCurSel) to the caret row, and no others.
//    With Control the first ones move the caret row and select nothing, Space toggles its
//    selection, and A selects all.
// A click on the empty area below the rows changes nothing in a list box, and is no double-click.
#pragma once

#include "platform/framework/window/CWnd.h"

class TQFRAMEWORK_API CListBox : public CWnd {
public:
  using CWnd::CWnd;

  // These return the row's number, or -1. `row` -1 inserts at the end, as the row count does. Texts
  // may repeat, and are not sorted. The selection stays with the rows that have it.
  int AddString(const char* text);
  int InsertString(int row, const char* text);
  // Changes the text of a row; its data and selection stay.
  bool SetItemText(int row, const char* text);
  // A selected row that is deleted leaves no selection behind. The other rows keep theirs.
  bool DeleteString(int row);
  void ResetContent();

  int GetCount() const;
  CString GetItemText(int row) const;
  // A number of the caller's; 0 for a new row.
  bool SetItemData(int row, intptr_t data);
  intptr_t GetItemData(int row) const;

  // The selected row (of several the first) or -1.
  int GetCurSel() const;
  // Selects that row alone, makes it the caret row and scrolls to it; -1 clears the selection and
  // moves nothing.
  bool SetCurSel(int row);

  // For list boxes of several selections: the other rows stay as they are, nothing is scrolled, and
  // the caret row stays where it is. In a list box of a single selection SelectRow is SetCurSel,
  // and deselecting the selected row clears the selection.
  bool SelectRow(int row, bool select = true);
  // The rows from `first` to `last`, both included, as SelectRow; `first` may be the greater one.
  // False, and nothing changes, when one of them is not there, and in a list box of a single
  // selection.
  bool SelectRange(int first, int last, bool select = true);
  bool IsSelected(int row) const;
  int GetSelCount() const;
  // The first selected row behind `after`, or -1; start with -1.
  int GetNextSelected(int after) const;
  // The caret row, selected or not; -1 in an empty list.
  int GetCaretIndex() const;
  // Makes it the caret row and scrolls to it. In a list box of a single selection only while none
  // is selected: otherwise the selected row is the caret row, and false the answer.
  bool SetCaretIndex(int row);

  // With true, the whole text of a row that is wider than the box appears when the mouse rests on
  // it. Off at the start. Not for a box that has a tip of its own (CDialog::SetToolTip).
  void SetRowTips(bool on);
  // What appears on that row: empty where the text fits, where there is no row, and while row tips
  // are off.
  CString GetRowTip(int row) const;

  // Scrolls as little as needed to show the row.
  bool EnsureVisible(int row);
  // Draws again what is in sight: after a change of what OnItemLook answers.
  void RedrawItems();
};
