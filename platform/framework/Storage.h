// The memory of strings, arrays and maps. It is allocated and freed in this library only, so that
// an object filled in one module may be emptied in another module that has a heap of its own.
#pragma once

#include <cstddef>
#include <type_traits>

#include "platform/framework/FrameworkApi.h"

namespace tq {

// Allocates `bytes` bytes, aligned for any plain type. Never null: when memory runs out the process
// is stopped with a line on the standard error stream, since nothing may throw across the
// interface.
TQFRAMEWORK_API void* AllocateStorage(size_t bytes);

// Resizes storage and keeps its bytes; the old address becomes invalid. A null `storage` allocates.
TQFRAMEWORK_API void* ResizeStorage(void* storage, size_t bytes);

// Frees storage from the two functions above. Null is allowed.
TQFRAMEWORK_API void FreeStorage(void* storage);

// Stops the program as AllocateStorage does, for a size that cannot be expressed.
[[noreturn]] TQFRAMEWORK_API void OutOfMemory();

// Called with the size at each allocation and each resize, on the thread that makes it.
using StorageObserver = void (*)(size_t bytes);

// Replaces the observer, null for none, and returns the one before. For tests and benchmarks that
// check that an operation allocates nothing. Without an observer this costs an allocation one load.
TQFRAMEWORK_API StorageObserver SetStorageObserver(StorageObserver observer);

// True for a type whose objects may be moved to another address as bytes.
template <class TYPE> inline constexpr bool isRelocatable = std::is_trivially_copyable_v<TYPE>;

} // namespace tq
