#include "platform/interface/TQSymbolStrings.h"

#include <string_view>

#include "platform/LibraryString.h"
#include "platform/services/tqCommon.h"
#include "platform/xml/XmlText.h"

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

const char* tqSymbolString(unsigned id, int traditional) noexcept {
  for (const Entry& entry : kEntries) {
    if (entry.id == id)
      return traditional != 0 ? entry.traditional : entry.simplified;
  }
  return nullptr;
}

namespace tq {

CString LibraryString(unsigned id) {
  CString text;
  if (const char* utf8 = tqSymbolString(id, IsTraditionChinese()))
    AssignXmlText(std::string_view(utf8), false, text);
  return text;
}

} // namespace tq
