// Brings a window in front of the others.
#pragma once

#include "platform/framework/WindowTypes.h"

namespace standin {

// Windows in memory have no front.
void BringToFront(WindowHandle window);

} // namespace standin
