// Somebody at a dialog who does anything.
#pragma once

#include <functional>

#include "platform/framework/window/CDialog.h"
#include "soak/Ledger.h"
#include "soak/Random.h"

namespace soak {

// From its opening to its end. `beside` runs now and then between two actions: the terminal works
// while the dialog is open.
void UseAtRandom(CDialog& dialog, Ledger& ledger, Random& random,
                 const std::function<void()>& beside);

} // namespace soak
