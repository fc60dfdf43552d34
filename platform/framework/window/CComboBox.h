// CComboBox: a box that drops down a list of entries, of which the user chooses one. Nothing can be
// typed.
#pragma once

#include "platform/framework/window/CWnd.h"

class TQFRAMEWORK_API CComboBox : public CWnd {
public:
  using CWnd::CWnd;

  // These return the entry's number, or -1. `index` -1 inserts at the end, as the count does. Texts
  // may repeat, and are not sorted. The choice stays with its entry.
  int AddString(const char* text);
  int InsertString(int index, const char* text);
  // Deleting the chosen entry leaves no choice.
  bool DeleteString(int index);
  void ResetContent();

  int GetCount() const;
  CString GetItemText(int index) const;
  // A number of the caller's; 0 for a new entry.
  bool SetItemData(int index, intptr_t data);
  intptr_t GetItemData(int index) const;

  // The chosen entry or -1, which is so until one is chosen.
  int GetCurSel() const;
  bool SetCurSel(int index); // -1: none
};
