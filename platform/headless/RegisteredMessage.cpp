#include "platform/framework/window/RegisteredMessage.h"

#include "platform/framework/CMap.h"
#include "platform/framework/CString.h"

namespace tq {
namespace {

constexpr unsigned kFirstNumber = 0xC000;
constexpr int kNumbers = 0x4000;

// Constructed by the first call: libraries register names during their initialisation, perhaps
// before that of this file.
CMap<CString, const char*, unsigned, unsigned>& Numbers() {
  static CMap<CString, const char*, unsigned, unsigned> numbers;
  return numbers;
}

} // namespace

unsigned RegisterMessage(const char* name) {
  CString key(name);
  key.MakeLower();
  unsigned number = 0;
  if (key.IsEmpty() || Numbers().Lookup(key, number))
    return number;
  if (Numbers().GetCount() == kNumbers)
    return 0;
  number = kFirstNumber + static_cast<unsigned>(Numbers().GetCount());
  Numbers().SetAt(key, number);
  return number;
}

} // namespace tq
