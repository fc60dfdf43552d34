// CEdit: one line of text that the user types.
#pragma once

#include "platform/framework/window/CListBox.h"

class TQFRAMEWORK_API CEdit : public CWnd {
public:
  using CWnd::CWnd;

  // The most that the user can type or paste, in bytes of the ANSI code page: a double-byte
  // character that has no room for both is refused. 0 is no limit. SetText heeds no limit, and text
  // that is longer stays.
  void SetLimitText(int bytes);
  int GetLimitText() const;
  // What is selected is replaced by the next character typed.
  void SelectAll();
  bool IsAllSelected() const; // false for an empty text
  // A text that is only shown: it can be selected, not changed.
  void SetReadOnly(bool readOnly = true);
  bool IsReadOnly() const;

  // Lays the edit over a row of a list box of the same dialog, scrolls there, and shows it. False
  // when there is no such row. It covers that row alone when it lies in front of the list box, that
  // is, when it stands before it in the template (DialogTemplate.h): then the mouse reaches the
  // edit there, and else the row.
  bool PlaceOverRow(const CListBox& list, int row);
};
