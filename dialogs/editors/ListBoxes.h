// The boxes of the list editors.
#pragma once

#include "dialogs/ListContents.h"
#include "dialogs/WorkingCopy.h"
#include "platform/framework/window/CListBox.h"
#include "platform/services/tqUI.h"

// The box of lists. It is drawn by its owner, so that the default list can be told from the others:
// in bold, with a mark in front.
class CListBoxMain : public CListBox {
public:
  using CListBox::CListBox;

  void Fill(const tq::WorkingCopy& lists);
  static void Look(bool isDefault, WindowItemLook& look) { look.bold = look.marked = isDefault; }
};

// The rows of one list. Headings are bold.
class CListBoxContents : public CListBox {
public:
  using CListBox::CListBox;

  void Fill(const tq::ListContents& contents);
  static void Look(const tq::ListContents& contents, int row, WindowItemLook& look) {
    look.bold = row >= 0 && row < contents.RowCount() && contents.IsHeading(row);
  }
};

// The editor of names, an edit that is laid over the row of the list that is renamed.
class CListBoxEdit : public CCharEdit {
public:
  // As long as a list's name can be.
  CListBoxEdit(const CWnd& dialog, int id);

  // Shows it over the row, with `text` selected. False when there is no such row.
  bool Open(const CListBox& lists, int row, const char* text);
};
