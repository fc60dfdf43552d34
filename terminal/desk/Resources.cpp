#include "terminal/desk/Resources.h"

#include <iterator>

#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"

namespace desk {
namespace {

// In this order: the macros, the templates, the end of the macros.
// clang-format off
constexpr tq::TemplateRow kRows[] = {
#include "platform/framework/window/DialogRows.inc"
#include "terminal/desk/Desk.inc"
#include "platform/framework/window/DialogRowsEnd.inc"
};
// clang-format on

struct BothLanguages {
  const char* traditional;
  const char* simplified;
};

constexpr BothLanguages kWords[] = {
#define DESK_WORD(name, traditional, simplified) {traditional, simplified},
#include "terminal/desk/Words.inc"
#undef DESK_WORD
};

CString ToAnsi(const char* utf8) {
  return CString(standin::ToAnsi(utf8).c_str());
}

} // namespace

CString Text(Word word) {
  const BothLanguages& texts = kWords[static_cast<int>(word)];
  return ToAnsi(IsTraditionChinese() != 0 ? texts.traditional : texts.simplified);
}

tq::Resources Resources() {
  tq::Resources resources;
  resources.traditional = IsTraditionChinese() != 0;
  resources.module = OwnModule();
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  resources.toAnsi = ToAnsi;
  return resources;
}

} // namespace desk
