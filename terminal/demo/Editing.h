// An editing session on a copy of the list file, step by step as a user's clicks would make it.
#pragma once

#include <string>

namespace demo {

// Starts a manager on `directory`, which holds a copy of the user's file, and edits: adds a list,
// edits its entries, renames ids, backs up, loses the file and restores it. Prints each step with
// its result and the notifications. False, with `error` in one line, when a step fails.
bool ShowEditing(const std::string& directory, std::string& error);

} // namespace demo
