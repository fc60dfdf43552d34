#include "Resources.h"

#include <iterator>

#include <StandIn.h>
#include <tqCommon.h>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

// In this order: the macros, the templates, the end of the macros.
// clang-format off
constexpr tq::TemplateRow kRows[] = {
#include <DialogRows.inc>
#include "Dialogs.inc"
#include <DialogRowsEnd.inc>
};
// clang-format on

const char* StringOf(unsigned id, int traditional) {
  if (id != kSymbolColumn)
    return nullptr;
  return traditional != 0 ? "商品代碼" : "商品代码";
}

CString ToAnsi(const char* utf8) {
  return standin::ToAnsi(utf8).c_str();
}

#ifdef _WIN32
void* OwnModule() {
  return ::GetModuleHandleW(nullptr);
}
#else
void* OwnModule() {
  return nullptr; // templates come from the table
}
#endif

} // namespace

tq::Resources OwnResources() {
  tq::Resources resources;
  resources.traditional = IsTraditionChinese() != 0;
  resources.module = OwnModule();
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  resources.string = StringOf;
  resources.toAnsi = ToAnsi;
  return resources;
}
