// The arrays that the stand-in symbol-data service hands out, each known by its address until it is
// released, so that a caller who forgets one, or releases one twice, is found out.
#pragma once

#include <cstddef>

#include "terminal/StandInApi.h"

namespace standin {

// A zero-filled block of `count` records of `size` bytes. Null when `count` is 0 or memory is
// short.
TQSTANDIN_API void* NewArray(std::size_t count, std::size_t size);
// Null is allowed. Anything that NewArray did not return, or that was released before, is counted
// as a bad release and left alone.
TQSTANDIN_API void ReleaseArray(void* array);

template <class T> T* NewArray(std::size_t count) {
  return static_cast<T*>(NewArray(count, sizeof(T)));
}

} // namespace standin
