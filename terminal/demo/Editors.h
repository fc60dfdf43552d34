// The editors of lists, with a user at work.
#pragma once

#include <string>

namespace demo {

// Opens each editor on the lists of a manager of its own, which is started on `directory` and has
// its lists replaced, and prints what the user sees there. False, with `error` in one line, when
// something does not come out as it should.
bool ShowEditors(const std::string& directory, std::string& error);

} // namespace demo
