#include "platform/texts/StringTable.h"

namespace {

struct Entry {
  unsigned id;
  const char* traditional;
  const char* simplified;
};

constexpr Entry kEntries[] = {
#define TQ_STRING(id, traditional, simplified) {id, traditional, simplified},
#include "platform/texts/Strings.inc"
#undef TQ_STRING
};

} // namespace

const char* tqSymbolString(unsigned id, int traditional) {
  for (const Entry& entry : kEntries) {
    if (entry.id == id)
      return traditional != 0 ? entry.traditional : entry.simplified;
  }
  return nullptr;
}
