#include "dialogs/resources/DialogTable.h"

#include <iterator>

#include "platform/Module.h"
#include "platform/interface/TQSymbolStrings.h"
#include "platform/services/tqCommon.h"
#include "platform/xml/XmlText.h"

namespace tq {
namespace {

// In this order: the macros, the templates, the end of the macros.
// clang-format off
constexpr TemplateRow kRows[] = {
#include "platform/framework/window/DialogRows.inc"
#include "dialogs/resources/Dialogs.inc"
#include "platform/framework/window/DialogRowsEnd.inc"
};
// clang-format on

CString ToAnsi(const char* utf8) {
  CString text;
  AssignXmlText(utf8, false, text);
  return text;
}

} // namespace

Resources LibraryResources() {
  Resources resources;
  resources.traditional = IsTraditionChinese() != 0;
  resources.module = OwnModule();
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  resources.string = tqSymbolString;
  resources.toAnsi = ToAnsi;
  return resources;
}

} // namespace tq
