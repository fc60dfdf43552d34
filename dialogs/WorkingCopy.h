// The lists that a dialog edits: copies of the manager's, which nobody else sees until they are
// committed.
#pragma once

#include "platform/framework/CPtrArray.h"
#include "symbollist/SymbolList.h"

class CTQSymbolListMgr;

namespace tq {

// Owns its lists.
class WorkingCopy {
public:
  // Empty, without a default list.
  WorkingCopy() = default;
  // Of the manager's lists of a kind (1 or 8), with the user lists' default index.
  WorkingCopy(CTQSymbolListMgr& manager, int kind);
  WorkingCopy(const WorkingCopy&) = delete;
  WorkingCopy& operator=(const WorkingCopy&) = delete;
  ~WorkingCopy();

  // CSymbolList pointers in display order. A list that is put in belongs to the copy.
  CPtrArray& Lists() { return lists_; }
  const CPtrArray& Lists() const { return lists_; }
  // The list at `index`, which is there.
  CSymbolList& At(int index) const;
  // Position of the list with that id, ignoring letter case, or -1.
  int Find(const char* id) const;
  // Puts a copy of `list` in the place of the one at `index`.
  void Replace(int index, const CSymbolList& list);
  // Destroys the lists.
  void Clear();

  int DefaultIndex() const { return defaultIndex_; }
  void SetDefaultIndex(int index) { defaultIndex_ = index; }

private:
  CPtrArray lists_;
  int defaultIndex_ = -1;
};

} // namespace tq
