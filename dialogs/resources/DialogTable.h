// The library's dialog templates and strings. The entry operations activate them by:
//   tq::ResourceContext context(tq::LibraryResources());
#pragma once

#include "platform/framework/window/ResourceContext.h"

namespace tq {

// In the current interface language of the terminal.
Resources LibraryResources();

} // namespace tq
