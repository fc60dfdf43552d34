// Adds one symbol to lists of the user: to one that is there, with or without editing it, or to a
// new one. Works on a copy of the lists, which whoever opens it commits when it has closed.
#pragma once

#include "dialogs/editors/ListsPane.h"

class CGroupSymbolAdd : public CDialog {
public:
  // `symbol` is one id; one that is none (empty, or with a ",") is added to nothing.
  CGroupSymbolAdd(const tq::DialogSources& sources, const CWnd* parent, const CString& symbol);

  tq::WorkingCopy& Copy() { return lists_.Copy(); }

protected:
  bool OnInitDialog() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnItemLook(int id, int row, WindowItemLook& look) override { lists_.Look(id, row, look); }

private:
  enum Control : int {
    kAddNew = 801,
    kAddAndEdit = 802,
    kAdd = 803,
  };

  void OnClicked(int id);
  void UpdateButtons();
  void AddToList();

  CString symbol_;
  tq::ListsPane lists_;
};
