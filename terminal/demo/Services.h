// What the terminal brings along besides the user's own lists: groups, cloud lists, accounts, the
// lists of an older product.
#pragma once

#include <string>

namespace demo {

// Starts a manager with lists from trading accounts on `directory`, which holds a copy of the
// user's file, and shows each of them. False, with `error` in one line, when something did not do
// what it should.
bool ShowServices(const std::string& directory, std::string& error);

} // namespace demo
