// Picks a symbol of one of the user's lists.
#pragma once

#include <CDialog.h>
#include <tqSymbol.h>

// What the dialog shows, without a window.
class ListModel {
public:
  explicit ListModel(CTQSymbolListMgr& manager) : manager_(manager) {}

  int ListCount() const { return manager_.GetSymbolListCount(1); }
  CString ListName(int list) const;
  int RowCount(int list) const;
  SymbolInfo Row(int list, int row) const;

private:
  CString IdOf(int list) const;

  CTQSymbolListMgr& manager_;
};

// Shows the dialog and returns its end code; with CDialog::Accepted `picked` is the symbol.
int PickSymbol(CTQSymbolListMgr& manager, WindowHandle parent, SymbolInfo& picked);
