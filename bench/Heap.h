// Heap use of the process. The program replaces malloc by one that counts and forwards; library and
// peer are counted alike.
#pragma once

#include <cstddef>

namespace bench {

// Allocations and reallocations since the start.
std::size_t Allocations();

// Bytes in use, including the allocator's overhead.
std::size_t HeapInUse();

} // namespace bench
