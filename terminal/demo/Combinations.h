// Combination orders as a user types them.
#pragma once

namespace demo {

// A table of typed combinations: split into legs and named, or refused with the reason.
void PrintCombinations();

} // namespace demo
