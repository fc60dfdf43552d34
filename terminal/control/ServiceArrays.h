// The arrays of the stand-in symbol-data service and the texts of the trading-system proxy. Each is
// tracked by its address until it is released, so that leaks, double releases and releases to the
// wrong service are found.
#pragma once

#include <cstddef>
#include <string_view>

#include "terminal/StandInApi.h"

namespace standin {

// A zero-filled block of `count` records of `size` bytes. Null when `count` is 0 or memory runs
// out.
TQSTANDIN_API void* NewArray(std::size_t count, std::size_t size);
// Null is allowed. Anything that NewArray did not return, or that was already released, is counted
// as a bad release and otherwise ignored.
TQSTANDIN_API void ReleaseArray(void* array);

template <class T> T* NewArray(std::size_t count) {
  return static_cast<T*>(NewArray(count, sizeof(T)));
}

// A NUL-terminated copy, also of an empty text. Null when memory runs out.
TQSTANDIN_API char* NewText(std::string_view text);
// The same as ReleaseArray for texts of NewText.
TQSTANDIN_API void ReleaseText(void* text);

} // namespace standin
