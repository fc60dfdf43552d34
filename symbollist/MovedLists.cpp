#include "symbollist/MovedLists.h"

namespace tq {

bool RenameMovedIn(CSymbolList& list, const RenameMoved& rename) {
  CString ids = list.GetIDs();
  return rename(ids) && list.Update1(ids) != 0;
}

std::unique_ptr<CSymbolList> CopyMoved(CSymbolList& source, const RenameMoved& rename) {
  auto copy = std::make_unique<CSymbolList>(source);
  CString ids = source.GetIDs();
  if (rename(ids))
    source.UpdateWithCopy(ids, *copy);
  return copy;
}

ListVector CopyAllMoved(const CPtrArray& sources, const RenameMoved& rename) {
  ListVector copies;
  // By position: the terminal may change its array while the service is asked.
  for (int i = 0; i < sources.GetSize(); ++i) {
    if (auto* const source = static_cast<CSymbolList*>(sources.GetAt(i)))
      copies.push_back(CopyMoved(*source, rename));
  }
  return copies;
}

} // namespace tq
