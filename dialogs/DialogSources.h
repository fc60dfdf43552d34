// What the dialogs read: the manager of the lists, and the symbol tables.
#pragma once

#include "manager/TQSymbolListMgr.h"

namespace tq {

class DialogSources {
public:
  // `tables` may be null: then no typed symbol is found.
  DialogSources(CTQSymbolListMgr& manager, CSymbolTableMgr* tables)
      : manager_(manager), tables_(tables), managers_(tables == manager.GetSymbolTableMgr()) {}

  CTQSymbolListMgr& Manager() const { return manager_; }
  // The manager's tables are asked for each time: the terminal may start it anew while a dialog is
  // up, and then they are others.
  CSymbolTableMgr* Tables() const { return managers_ ? manager_.GetSymbolTableMgr() : tables_; }

private:
  CTQSymbolListMgr& manager_;
  CSymbolTableMgr* tables_;
  bool managers_; // the tables are the manager's
};

} // namespace tq
