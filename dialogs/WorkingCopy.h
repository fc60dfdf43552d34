// The lists that a dialog edits: copies of the manager's, invisible to others until they are
// committed.
#pragma once

#include <memory>
#include <vector>

#include "platform/framework/CPtrArray.h"
#include "symbollist/SymbolList.h"

class CTQSymbolListMgr;

namespace tq {

class WorkingCopy {
public:
  using Lists = std::vector<std::unique_ptr<CSymbolList>>; // none is null

  // Empty, without a default list.
  WorkingCopy() = default;
  // Of the manager's lists of a kind (1 or 8), with the user lists' default index.
  WorkingCopy(CTQSymbolListMgr& manager, int kind);

  // In display order.
  Lists& All() { return lists_; }
  int Count() const { return static_cast<int>(lists_.size()); }
  // `index` must be in range.
  CSymbolList& At(int index) const { return *lists_[static_cast<std::size_t>(index)]; }
  // Position of the list with that id, ignoring letter case, or -1.
  int Find(const char* id) const;
  void Clear() { lists_.clear(); }

  // The lists as the manager's operations take them. The pointers are valid until the lists change.
  CPtrArray Pointers() const;

  int DefaultIndex() const { return defaultIndex_; }
  void SetDefaultIndex(int index) { defaultIndex_ = index; }

private:
  Lists lists_;
  int defaultIndex_ = -1;
};

} // namespace tq
