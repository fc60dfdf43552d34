// Where strings, arrays and maps get their memory. All of it is allocated and freed inside this
// library, so that an object filled in one module may be emptied in another that has a heap of its
// own.
#pragma once

#include <cstddef>
#include <type_traits>

#include "platform/framework/FrameworkApi.h"

namespace tq {

// Raw storage of `bytes` bytes, aligned for any plain type. Never null: a terminal that is out of
// memory is stopped with a line on the standard error stream, since nothing may throw across the
// interface.
TQFRAMEWORK_API void* AllocateStorage(size_t bytes);

// The same storage at another size, its bytes kept; the old address is no longer valid. Null
// allocates.
TQFRAMEWORK_API void* ResizeStorage(void* storage, size_t bytes);

// Frees what the two above returned. Null is allowed.
TQFRAMEWORK_API void FreeStorage(void* storage);

// Stops the program as AllocateStorage does, for a size that cannot be expressed.
[[noreturn]] TQFRAMEWORK_API void OutOfMemory();

// Called with the size at each allocation and each resize, on the thread that makes it.
using StorageObserver = void (*)(size_t bytes);

// Puts in an observer, null for none, and returns the one before. For tests and benchmarks that
// hold an operation to "allocates nothing"; without one an allocation pays a single load for this.
TQFRAMEWORK_API StorageObserver SetStorageObserver(StorageObserver observer);

// True for a type whose objects may be moved to another address as bytes.
template <class TYPE> inline constexpr bool isRelocatable = std::is_trivially_copyable_v<TYPE>;

} // namespace tq
