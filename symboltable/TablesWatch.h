// Whether the symbol tables that a caller was given live still: the terminal may delete them while
// a service is asked.
#pragma once

#include "symboltable/ExchangeTables.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {

class TablesWatch {
public:
  explicit TablesWatch(CSymbolTableMgr& tables) : slots_(*tables.slots_) {}

  bool AreGone() const { return slots_->IsOwnerless(); }

private:
  ExchangeTables::Use slots_;
};

} // namespace tq
