#include "symbollist/NewListId.h"

#include "platform/System.h"

namespace tq {

CString NewListId() {
  Guid guid;
  char text[kGuidTextLength + 1] = {};
  if (NewGuid(guid))
    FormatGuid(guid, text);
  return CString(text);
}

} // namespace tq
