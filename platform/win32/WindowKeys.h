// What the keys of a dialog do before the system sees them. Internal.
#pragma once

#include "platform/win32/WindowRun.h"

namespace tq {

// Whether the message is a key that is dealt with: by the dialog, which hears of it first, or by
// this layer.
bool IsKeyDone(Run& run, const MSG& message);

} // namespace tq
