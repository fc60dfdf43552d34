// The library's dialog templates for tests to walk through.
#pragma once

#include <string>
#include <vector>

#include "dialogs/resources/DialogTable.h"

using Controls = std::vector<tq::TemplateRow>;

struct Template {
  tq::TemplateRow dialog = {};
  Controls controls; // in their order

  std::string Name() const { return "Template" + std::to_string(dialog.id); }
};

inline std::vector<Template> Templates() {
  const tq::Resources resources = tq::LibraryResources();
  std::vector<Template> templates;
  for (size_t i = 0; i < resources.rowCount; ++i) {
    const tq::TemplateRow& row = resources.rows[i];
    if (row.kind == tq::ControlKind::Dialog)
      templates.push_back({row, {}});
    else
      templates.back().controls.push_back(row);
  }
  return templates;
}
