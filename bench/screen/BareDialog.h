// A dialog of bare Qt widgets with the content of one of the library's: what the same windows cost
// without the library.
#pragma once

#include "bench/screen/Content.h"
#include "bench/screen/Templates.h"

namespace bench {

// Opens it, draws it and closes it.
void OpenBare(const Template& dialog, const Content& content);

} // namespace bench
