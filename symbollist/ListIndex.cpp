#include "symbollist/ListIndex.h"

#include "symbollist/ListArray.h"

namespace tq {
namespace {

std::string Folded(CString text) {
  text.MakeLower();
  return std::string(text.GetString(), static_cast<size_t>(text.GetLength()));
}

} // namespace

ListIndex::ListIndex(const CPtrArray& lists) {
  for (int i = 0; i < lists.GetSize(); ++i)
    Add(*ListAt(lists, i), i);
}

int ListIndex::FindById(const CString& id) const {
  const auto found = positions_.find(Folded(id));
  return found == positions_.end() ? -1 : found->second;
}

bool ListIndex::HasName(const CString& name) const {
  return names_.count(Folded(name)) != 0;
}

// Identifiers need not be unique in a file that somebody else wrote: the first one counts.
void ListIndex::Add(const CSymbolList& list, int position) {
  positions_.emplace(Folded(list.GetID()), position);
  names_.insert(Folded(list.GetName()));
}

} // namespace tq
