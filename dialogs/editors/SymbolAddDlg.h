// Adds symbols that the terminal names to one of the user's lists, or to a new one. Works on a copy
// of the lists, which whoever opens it commits when it has closed, in whatever way.
#pragma once

#include "dialogs/editors/ListsPane.h"

class CSymbolAddDlg : public CSingletonDlg {
public:
  // `symbols` are ids joined by ",". The list with the identifier `listId` is selected as the
  // dialog opens; where there is none, the default list.
  CSymbolAddDlg(const tq::DialogSources& sources, const CWnd* parent, const CString& symbols,
                const CString& listId);

  tq::WorkingCopy& Copy() { return lists_.Copy(); }

protected:
  bool OnInitDialog() override;
  void OnCommand(int id, WindowEvent event) override;
  void OnItemLook(int id, int row, WindowItemLook& look) override { lists_.Look(id, row, look); }

private:
  enum Control : int {
    kSymbols = 741,
    kAddAndEdit = 801,
    kAddNew = 802,
    kAdd = 803,
  };

  int StartRow() const;
  void OnClicked(int id);
  void UpdateButtons();
  void AddToList();
  void AddAndEdit();

  CString symbols_;
  CString listId_;
  tq::ListsPane lists_;
};
