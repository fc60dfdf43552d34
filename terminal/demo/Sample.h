// Symbols for a session's lists: whatever the market has, which may be the user's own.
#pragma once

#include <string>

namespace demo {

// Up to `count` ids of the market's symbols, joined by ",", after skipping some.
std::string SomeSymbols(size_t skip, size_t count);

} // namespace demo
