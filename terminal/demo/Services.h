// Everything besides the user's own lists: groups, cloud lists, accounts, lists of an older
// product.
#pragma once

#include <string>

namespace demo {

// Starts a manager with account lists on `directory`, which holds a copy of the user's file, and
// shows each of them. False, with `error` in one line, when a step fails.
bool ShowServices(const std::string& directory, std::string& error);

} // namespace demo
