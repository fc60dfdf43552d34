#include "symboltable/DefaultExchangeIds.h"

#include "platform/services/TQSProxy.h"
#include "symboltable/LeadingInt.h"

namespace tq {

bool ReadDefaultExchangeIds(CUIntArray& ids) {
  char text[TQSUserInfoSize + 1] = {};
  if (TQSGetUserInfo(LoginInfoDefaultExchanges, text, "") == 0)
    return false;
  ids.RemoveAll();
  ForEachNumber(text, [&ids](int, int id) {
    if (id > 0)
      ids.Add(static_cast<unsigned>(id));
  });
  return true;
}

bool ContainsId(const CUIntArray& ids, unsigned id) {
  for (const unsigned held : ids) {
    if (held == id)
      return true;
  }
  return false;
}

void MoveDefaultsForward(CUIntArray& ids, const CUIntArray& defaults) {
  for (int i = 0; i < ids.GetSize(); ++i) {
    const unsigned id = ids[i];
    if (ContainsId(defaults, id))
      continue;
    ids.Add(id);
    ids.RemoveAt(i);
  }
}

} // namespace tq
