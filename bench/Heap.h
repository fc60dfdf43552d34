// What the process takes from the heap. The program puts its own malloc in front of the C
// library's, which counts and hands on; library and peer are counted alike.
#pragma once

#include <cstddef>

namespace bench {

// Allocations and reallocations since the start.
std::size_t Allocations();

// Bytes in use, what the allocator needs to keep track of them included.
std::size_t HeapInUse();

} // namespace bench
