#include "dialogs/WorkingCopy.h"

#include "manager/TQSymbolListMgr.h"

namespace tq {

WorkingCopy::WorkingCopy(CTQSymbolListMgr& manager, int kind) {
  CPtrArray copies;
  manager.GetSymbolList(copies, kind);
  for (int i = 0; i < copies.GetSize(); ++i)
    lists_.emplace_back(static_cast<CSymbolList*>(copies[i]));
  manager.GetDefaultListIdx(defaultIndex_);
}

int WorkingCopy::Find(const char* id) const {
  for (int i = 0; i < Count(); ++i) {
    if (At(i).IsSameID(id))
      return i;
  }
  return -1;
}

CPtrArray WorkingCopy::Pointers() const {
  CPtrArray pointers;
  for (const auto& list : lists_)
    pointers.Add(list.get());
  return pointers;
}

} // namespace tq
