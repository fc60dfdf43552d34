// Dialogs as text.
#pragma once

#include "terminal/user/User.h"

namespace demo {

// Prints what the user sees: lists with their first rows, and the other controls in between.
void PrintScreen(const standin::User& user);

} // namespace demo
