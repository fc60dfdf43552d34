#include "platform/LibraryString.h"

#include <string_view>

#include "platform/services/tqCommon.h"
#include "platform/texts/StringTable.h"
#include "platform/xml/XmlText.h"

namespace tq {

CString LibraryString(unsigned id) {
  CString text;
  if (const char* utf8 = tqSymbolString(id, IsTraditionChinese()))
    AssignXmlText(std::string_view(utf8), false, text);
  return text;
}

} // namespace tq
