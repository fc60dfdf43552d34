// A working copy as a dialog would hand it to the manager.
#pragma once

#include "tests/operations/Operations.h"

namespace operations {

// Copies of the lists of the arguments' kind and one more list, freed at the end.
class CopiesOfLists {
public:
  CopiesOfLists(CTQSymbolListMgr& manager, const Arguments& arguments) : nothing_(arguments.nulls) {
    manager.GetSymbolList(copies_, arguments.kind);
    auto* const more = new CSymbolList;
    more->SetID("more");
    more->SetName(arguments.name);
    more->Update1(arguments.symbols);
    copies_.Add(more);
  }
  ~CopiesOfLists() {
    for (int i = 0; i < copies_.GetSize(); ++i)
      delete static_cast<CSymbolList*>(copies_[i]);
  }
  CopiesOfLists(const CopiesOfLists&) = delete;
  CopiesOfLists& operator=(const CopiesOfLists&) = delete;

  CPtrArray* Lists() { return nothing_ ? nullptr : &copies_; }

private:
  CPtrArray copies_;
  bool nothing_;
};

} // namespace operations
