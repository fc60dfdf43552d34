// The library's dialog templates and strings, as the entry operations put them in force:
//   tq::ResourceContext context(tq::LibraryResources());
#pragma once

#include "platform/framework/ResourceContext.h"

namespace tq {

// In the terminal's interface language of this moment.
Resources LibraryResources();

} // namespace tq
