#include "dialogs/WorkingCopy.h"

#include "manager/TQSymbolListMgr.h"
#include "symbollist/ListArray.h"

namespace tq {

WorkingCopy::WorkingCopy(CTQSymbolListMgr& manager, int kind) {
  manager.GetSymbolList(lists_, kind);
  manager.GetDefaultListIdx(defaultIndex_);
}

WorkingCopy::~WorkingCopy() {
  Clear();
}

CSymbolList& WorkingCopy::At(int index) const {
  return *ListAt(lists_, index);
}

int WorkingCopy::Find(const char* id) const {
  return FindListById(lists_, id);
}

void WorkingCopy::Replace(int index, const CSymbolList& list) {
  auto* const copy = new CSymbolList(list);
  delete ListAt(lists_, index);
  lists_.SetAt(index, copy);
}

void WorkingCopy::Clear() {
  DestroyLists(lists_);
}

} // namespace tq
