// Arithmetic with string lengths, which are int, without overflow. Internal.
#pragma once

#include <climits>
#include <cstring>

#include "platform/framework/Storage.h"

namespace tq {

// The length of a NUL-terminated text, 0 for null. Stops the program when it does not fit an int.
inline int LengthOf(const char* text) {
  const size_t length = text == nullptr ? 0 : std::strlen(text);
  if (length > INT_MAX)
    OutOfMemory();
  return static_cast<int>(length);
}

// The sum of two lengths. Stops the program when it does not fit an int.
inline int SumOf(int left, int right) {
  if (left > INT_MAX - right)
    OutOfMemory();
  return left + right;
}

inline void CopyBytes(char* to, const char* from, int length) {
  if (length > 0)
    std::memmove(to, from, static_cast<size_t>(length));
}

} // namespace tq
