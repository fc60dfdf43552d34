// The two boxes that the dialogs over the user's lists have in common: the lists of a working copy,
// and what the selected one holds.
#pragma once

#include "dialogs/WorkingCopy.h"
#include "dialogs/editors/ContentEditor.h"
#include "dialogs/editors/ListBoxes.h"

namespace tq {

class ListsPane {
public:
  enum Control : int { kLists = 781, kContents = 782 };

  // Of the manager's lists of a kind. `marksDefault`: one of them is the default list, and is shown
  // so.
  ListsPane(const DialogSources& sources, int kind, bool marksDefault)
      : sources_(sources), kind_(kind), marksDefault_(marksDefault),
        copy_(sources.Manager(), kind) {}

  WorkingCopy& Copy() { return copy_; }
  const WorkingCopy& Copy() const { return copy_; }

  // The dialog stands: fills both boxes. The list at `selected` is shown; where there is none, the
  // first one.
  void Open(const CWnd& dialog, int selected);

  CListBox Lists() const { return CListBox(dialog_, kLists); }
  int Selected() const { return Lists().GetCurSel(); } // a row, which is the list's place, or -1
  bool HasSelected() const { return Selected() >= 0; }
  void Select(int row); // -1: none
  // All lists anew.
  void Show(int selected);
  // What the selected list holds now; and its name at a place.
  void ShowContents();
  void ShowName(int row);

  // Open the content editor on a copy of the selected list, or on a new one, with `symbols` behind
  // what it has. True when the user was done: the list is in the working copy then, and selected.
  bool EditSelected(const CString& symbols = {});
  bool MakeList(const CString& symbols = {});

  // Headings and the default list look different.
  void Look(int id, int row, WindowItemLook& look) const;

private:
  bool Edit(CSymbolList& list, ContentEditor::Mode mode, int row, const CString& symbols);

  DialogSources sources_;
  int kind_;
  bool marksDefault_;
  WorkingCopy copy_;
  CWnd dialog_;
  ListContents shown_; // of the selected list
};

} // namespace tq
