#include "bench/screen/Templates.h"

#include <iterator>

namespace bench {
namespace {

// In this order: the macros, the templates, the end of the macros.
// clang-format off
constexpr tq::TemplateRow kRows[] = {
#include "platform/framework/window/DialogRows.inc"
#include "dialogs/resources/Dialogs.inc"
#include "platform/framework/window/DialogRowsEnd.inc"
};
// clang-format on

} // namespace

tq::Resources TemplateResources() {
  tq::Resources resources;
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  return resources;
}

std::vector<Template> AllTemplates() {
  std::vector<Template> templates;
  for (const tq::TemplateRow& row : kRows) {
    if (row.kind == tq::ControlKind::Dialog)
      templates.push_back({&row, {}});
    else
      templates.back().controls.push_back(&row);
  }
  return templates;
}

} // namespace bench
