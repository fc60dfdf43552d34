// CListCtrl: a table of text rows with titled columns. Several rows can be selected. Keys and the
// caret row are those of list boxes of several selections (CListBox.h); a click on the empty
// area below the rows clears the selection.
//
// A virtual one, which the template says (TQ_VIRTUAL), has no rows of its own: it is told how many
// there are, and asks the dialog's OnCellText for what it shows. A million rows cost what a
// screenful does.
#pragma once

#include "platform/framework/window/CWnd.h"

class TQFRAMEWORK_API CListCtrl : public CWnd {
public:
  using CWnd::CWnd;

  // How the table behaves; all off at the start.
  enum Style : unsigned {
    FullRowSelect = 1, // a click anywhere in a row means the row, not only one on its first column
    GridLines = 2,
    HoverSelect = 4, // a row on which the mouse rests for the hover time is selected as if clicked
  };
  void SetStyles(unsigned styles);
  unsigned GetStyles() const;
  // 0, as at the start: the system's own time.
  void SetHoverTime(unsigned milliseconds);
  unsigned GetHoverTime() const;

  // Adds a column at the right, `width` in dialog units; returns its number, or -1. Width 0 takes
  // what the columns before leave of the table.
  int AddColumn(const char* title, int width);
  int GetColumnCount() const;
  CString GetColumnTitle(int column) const;

  // These return the row's number, or -1; -1 and the row count insert at the end. The text is that
  // of column 0. The selection stays with the rows that have it. A table without columns has no
  // rows.
  int AddRow(const char* text);
  int InsertRow(int row, const char* text);
  bool DeleteRow(int row);
  void DeleteAllRows();

  // For virtual tables only, false for others. Row 0 is in sight then and the caret row, none is
  // selected, and the cells are asked for again. False, and nothing changes, for a negative number
  // or without columns. In virtual tables nothing else adds, deletes or changes rows, but
  // DeleteAllRows is SetVirtualRows(0); there is no item data.
  bool SetVirtualRows(int count);

  int GetRowCount() const;
  bool SetCellText(int row, int column, const char* text);
  CString GetCellText(int row, int column) const;
  // A number of the caller's; 0 for a new row.
  bool SetItemData(int row, intptr_t data);
  intptr_t GetItemData(int row) const;

  // The first selected row or -1.
  int GetCurSel() const;
  // Selects that row alone, makes it the caret row and scrolls to it; -1 clears the selection and
  // moves nothing. SelectRow scrolls nothing, and the caret row stays where it is.
  bool SetCurSel(int row);
  bool SelectRow(int row, bool select = true);
  bool IsSelected(int row) const;
  int GetSelectedCount() const;
  // The first selected row behind `after`, or -1; start with -1.
  int GetNextSelected(int after) const;
  bool EnsureVisible(int row);
};
