// Hash values for the keys of a CMap. They are valid in one process and never stored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <type_traits>

#include "platform/framework/SeededHash.h"

namespace tq {

// Mixes a number into all bits of the result; the low ones select the bucket.
inline size_t MixBits(uint64_t value) {
  constexpr uint64_t odd = 0x9E3779B97F4A7C15u;
  value = (value ^ (value >> 32)) * odd;
  value = (value ^ (value >> 29)) * odd;
  return static_cast<size_t>(value ^ (value >> 32));
}

// Of the characters up to the NUL, not of the address. Null counts as empty.
inline size_t HashKey(const char* text) {
  return SeededHash(text, text == nullptr ? 0 : std::strlen(text));
}
inline size_t HashKey(char* text) {
  return HashKey(static_cast<const char*>(text));
}

// Integers and enumerations by value, other pointers by address, everything else by std::hash.
template <class KEY> size_t HashKey(const KEY& key) {
  if constexpr (std::is_integral_v<KEY> || std::is_enum_v<KEY>)
    return MixBits(static_cast<uint64_t>(key));
  else if constexpr (std::is_pointer_v<KEY>)
    return MixBits(reinterpret_cast<uintptr_t>(key));
  else
    return std::hash<KEY>()(key);
}

} // namespace tq
