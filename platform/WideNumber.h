// Products of 128 bits, which hashes need.
//
// Where the compiler has such numbers they are its own. The plain form does the same with 64 bits,
// for other compilers and 32-bit targets; it is there everywhere, so that tests compare the two.
#pragma once

#include <cstdint>

namespace tq {

struct WideNumber {
  std::uint64_t low;
  std::uint64_t high;

  friend bool operator==(const WideNumber&, const WideNumber&) = default;
};

// The whole product, from the four products of halves.
constexpr WideNumber MultiplyPlain(std::uint64_t left, std::uint64_t right) {
  constexpr std::uint64_t half = 0xffffffffu;
  const std::uint64_t low = (left & half) * (right & half);
  // Neither sum runs over: a product of halves leaves room for two more halves.
  const std::uint64_t middle = (left >> 32) * (right & half) + (low >> 32);
  const std::uint64_t other = (left & half) * (right >> 32) + (middle & half);
  return {other << 32 | (low & half),
          (left >> 32) * (right >> 32) + (middle >> 32) + (other >> 32)};
}

#if defined(__SIZEOF_INT128__)
__extension__ using NativeWide = unsigned __int128;

constexpr WideNumber Multiply(std::uint64_t left, std::uint64_t right) {
  const NativeWide product = NativeWide{left} * right;
  return {static_cast<std::uint64_t>(product), static_cast<std::uint64_t>(product >> 64)};
}
#else
constexpr WideNumber Multiply(std::uint64_t left, std::uint64_t right) {
  return MultiplyPlain(left, right);
}
#endif

} // namespace tq
