// Brings a window to the front.
#pragma once

#include "platform/framework/window/WindowTypes.h"

namespace standin {

// Windows in memory have no order; nothing happens.
void BringToFront(WindowHandle window);

} // namespace standin
