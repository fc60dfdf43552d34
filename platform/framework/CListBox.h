// CListBox: a list of text rows, of which the user selects one or, where the template says so, several.
#pragma once

#include "platform/framework/CWnd.h"

class TQFRAMEWORK_API CListBox : public CWnd {
public:
  using CWnd::CWnd;

  // These return the row's number, or -1. `row` -1 inserts at the end, as the row count does. Texts may
  // repeat, and are not sorted. The selection stays with the rows that have it.
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
  // Selects that row alone, makes it the caret row and scrolls to it; -1 clears the selection.
  bool SetCurSel(int row);

  // For list boxes of several selections. In one of a single selection SelectRow is SetCurSel, and
  // deselecting the selected row clears the selection.
  bool SelectRow(int row, bool select = true);
  bool IsSelected(int row) const;
  int GetSelCount() const;
  // The first selected row behind `after`, or -1; start with -1.
  int GetNextSelected(int after) const;
  // The row that keys move, selected or not; 0 in a list that was never touched, -1 in an empty one.
  int GetCaretIndex() const;
  bool SetCaretIndex(int row);

  // Scrolls as little as needed to show the row.
  bool EnsureVisible(int row);
  // Draws again what is in sight: after a change of what OnItemLook answers.
  void RedrawItems();
};
