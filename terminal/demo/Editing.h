// An editing session, as a user's clicks would make it, on a copy of the list file.
#pragma once

#include <string>

namespace demo {

// Starts a manager on `directory`, which holds a copy of the user's file, and edits: adds a list,
// edits its entries, renames ids, backs up, loses the file and restores it. Prints each step with
// its result and what the terminal was told. False, with `error` in one line, when a step did not
// do what it should.
bool ShowEditing(const std::string& directory, std::string& error);

} // namespace demo
