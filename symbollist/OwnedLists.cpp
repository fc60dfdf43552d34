#include "symbollist/OwnedLists.h"

#include <algorithm>

#include "platform/Text.h"

namespace tq {

bool OwnedLists::HasName(const CString& name, int skip) const {
  const ListIndex::Lists& lists = index_.WithName(ViewOf(name));
  if (lists.empty() || skip < 0 || skip >= lists_.GetSize())
    return !lists.empty();
  return lists.size() > 1 || lists.front() != ListAt(lists_, skip);
}

bool OwnedLists::HasIdAndName(const CString& id, const CString& name) const {
  const ListIndex::Lists& lists = index_.WithId(ViewOf(id));
  return std::any_of(lists.begin(), lists.end(),
                     [&name](const CSymbolList* list) { return list->GetName() == name; });
}

int OwnedLists::PositionOf(const CSymbolList* list) const {
  const auto* found = std::lower_bound(
      lists_.begin(), lists_.end(), list, [](const void* each, const CSymbolList* one) {
        return ListIndex::IsBefore(static_cast<const CSymbolList*>(each), one);
      });
  return static_cast<int>(found - lists_.begin());
}

void OwnedLists::AddLast(std::unique_ptr<CSymbolList> list) {
  index_.AddLast(*list);
  lists_.Add(list.release());
  ++changes_;
}

void OwnedLists::AddFirst(std::unique_ptr<CSymbolList> list) {
  index_.AddFirst(*list);
  lists_.InsertAt(0, list.release());
  ++changes_;
}

void OwnedLists::Delete(CSymbolList* list) {
  lists_.RemoveAt(PositionOf(list));
  delete list;
  ++changes_;
}

void OwnedLists::Replace(CPtrArray& lists) {
  Destroy();
  lists_.Copy(lists);
  lists.RemoveAll();
  for (int i = 0; i < lists_.GetSize(); ++i)
    index_.AddLast(*ListAt(lists_, i));
}

void OwnedLists::Destroy() {
  index_.Clear();
  DestroyLists(lists_);
  ++changes_;
}

} // namespace tq
