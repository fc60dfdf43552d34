// Adds one symbol to lists of the user: to one that is there, with or without editing it, or to a
// new one. Works on a copy of the lists, which whoever opens it commits when it has closed.
#pragma once

#include <memory>

#include "dialogs/WorkingCopy.h"
#include "dialogs/editors/ContentEditor.h"

class CGroupSymbolAdd : public CDialog {
public:
  // `symbol` is one id; one that is none (empty, or with a ",") is added to nothing.
  CGroupSymbolAdd(const tq::EditorSources& sources, const CWnd* parent, const CString& symbol);

  tq::WorkingCopy& Copy() { return copy_; }

protected:
  bool OnInitDialog() override;
  void OnCommand(int id, ControlEvent event) override;
  void OnItemLook(int id, int row, ItemLook& look) override;

private:
  enum Control : int {
    kLists = 781,
    kContents = 782,
    kAddNew = 801,
    kAddAndEdit = 802,
    kAdd = 803,
  };

  int Selected() const;
  void Select(int row);
  void ShowSelected();
  void AddToList();
  void AddAndEdit();
  void AddToNewList();
  bool EditContents(CSymbolList& list, tq::ContentEditor::Mode mode, int row);
  void TellAddedTwice() const;

  tq::EditorSources sources_;
  CString symbol_;
  tq::WorkingCopy copy_;
  tq::ListContents shown_; // of the selected list
};
