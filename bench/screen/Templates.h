// The library's dialog templates, as both sides of a comparison build them.
#pragma once

#include <vector>

#include "platform/framework/window/ResourceContext.h"

namespace bench {

// In Traditional Chinese; texts are UTF-8 on both sides.
tq::Resources TemplateResources();

struct Template {
  const tq::TemplateRow* dialog;
  std::vector<const tq::TemplateRow*> controls;
};
std::vector<Template> AllTemplates();

} // namespace bench
