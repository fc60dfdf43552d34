// A user of the dialogs that are measured, on windows in memory.
#pragma once

#include <functional>

#include "platform/framework/window/CDialog.h"

namespace bench {

// Runs `open`, in which one dialog opens; cancels it when `act` has acted in it.
void WithUser(std::function<void(CDialog&)> act, const std::function<void()>& open);

// Asks the table for the rows in sight, as drawing them does.
void DrawSight(CDialog& dialog, int table);

} // namespace bench
