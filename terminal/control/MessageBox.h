// Message boxes on the screen.
#pragma once

#include "terminal/StandIn.h"

namespace standin {

// Shows the message over the active window and returns the button that the user pressed. 0, and
// nothing is shown, when it has no text, and elsewhere than on Windows when no dialog is on the
// screen.
int ShowBox(const Message& message);

} // namespace standin
