#include "symbollist/ListArray.h"

namespace tq {

int FindListById(const CPtrArray& lists, const char* id) {
  for (int i = 0; i < lists.GetSize(); ++i) {
    if (ListAt(lists, i)->IsSameID(id))
      return i;
  }
  return -1;
}

void DestroyLists(CPtrArray& lists) {
  for (int i = 0; i < lists.GetSize(); ++i)
    delete ListAt(lists, i);
  lists.RemoveAll();
}

} // namespace tq
