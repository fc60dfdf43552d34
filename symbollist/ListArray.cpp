#include "symbollist/ListArray.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace tq {

int FindListById(const CPtrArray& lists, const char* id) {
  for (int i = 0; i < lists.GetSize(); ++i) {
    if (ListAt(lists, i)->IsSameID(id))
      return i;
  }
  return -1;
}

bool IsAmong(const CPtrArray& lists, const CSymbolList* list, int position) {
  if (position < lists.GetSize() && ListAt(lists, position) == list)
    return true;
  return std::find(lists.begin(), lists.end(), list) != lists.end();
}

bool SameNamesAndContents(const CPtrArray& left, const CPtrArray& right) {
  if (left.GetSize() != right.GetSize())
    return false;
  for (int i = 0; i < left.GetSize(); ++i) {
    if (ListAt(left, i) == nullptr || ListAt(left, i)->GetName() != ListAt(right, i)->GetName() ||
        ListAt(left, i)->GetIDs() != ListAt(right, i)->GetIDs())
      return false;
  }
  return true;
}

void DestroyLists(CPtrArray& lists) {
  for (int i = 0; i < lists.GetSize(); ++i)
    delete ListAt(lists, i);
  lists.RemoveAll();
}

} // namespace tq
