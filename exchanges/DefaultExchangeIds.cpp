#include "exchanges/DefaultExchangeIds.h"

#include "symboltable/ExchangeService.h"

namespace tq {

bool ReadDefaultExchangeIds(CUIntArray& ids) {
  CUIntArray read;
  if (!ReadLoginNumbers(LoginInfoDefaultExchanges, [&read](int id) {
        if (id > 0)
          read.Add(static_cast<unsigned>(id));
      }))
    return false;
  ids.Copy(read);
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
