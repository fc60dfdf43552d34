// The arrays that the stand-in symbol-data service hands out and the texts of the trading-system
// proxy, each known by its address until it is released, so that a caller who forgets one, releases
// one twice, or gives it to the wrong service, is found out.
#pragma once

#include <cstddef>
#include <string_view>

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

// A NUL-terminated copy, an empty one too. Null when memory is short.
TQSTANDIN_API char* NewText(std::string_view text);
// The same as ReleaseArray, for what NewText returned.
TQSTANDIN_API void ReleaseText(void* text);

} // namespace standin
