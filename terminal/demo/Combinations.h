// Combination orders as a user types them.
#pragma once

namespace demo {

// Prints a table of typed combinations: split into legs with descriptions, or refused with the
// reason.
void PrintCombinations();

} // namespace demo
