// What the keys of a dialog do before the system sees them. Internal.
#pragma once

#include "platform/win32/window/WindowRun.h"

namespace tq {

// Handles a key: the dialog gets it first, then this layer. Whether one of them used it.
bool IsKeyDone(Run& run, const MSG& message);

} // namespace tq
