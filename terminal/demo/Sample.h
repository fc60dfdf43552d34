// Symbols for the lists of a session, from any market.
#pragma once

#include <string>

namespace demo {

// Up to `count` ids of the market's symbols, joined by ",", after skipping some.
std::string SomeSymbols(size_t skip, size_t count);

} // namespace demo
