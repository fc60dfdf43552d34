// Numbers of 128 bits, as far as hashes and packed texts need them.
//
// Where the compiler has such numbers they are its own. The plain forms below do the same with 64
// bits, for the others and for 32-bit targets; they are there everywhere, so that tests hold one
// against the other.
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

// `number` without its lowest bits; `bits` is 0 to 127.
constexpr WideNumber ShiftRightPlain(WideNumber number, unsigned bits) {
  if (bits >= 64)
    return {number.high >> (bits - 64), 0};
  // In two steps, as nothing may be shifted by 64 at once.
  return {number.low >> bits | number.high << 1 << (63 - bits), number.high >> bits};
}

#if defined(__SIZEOF_INT128__)
__extension__ using NativeWide = unsigned __int128;

constexpr WideNumber FromNative(NativeWide wide) {
  return {static_cast<std::uint64_t>(wide), static_cast<std::uint64_t>(wide >> 64)};
}
constexpr WideNumber Multiply(std::uint64_t left, std::uint64_t right) {
  return FromNative(NativeWide{left} * right);
}
constexpr WideNumber ShiftRight(WideNumber number, unsigned bits) {
  return FromNative((NativeWide{number.high} << 64 | number.low) >> bits);
}
#else
constexpr WideNumber Multiply(std::uint64_t left, std::uint64_t right) {
  return MultiplyPlain(left, right);
}
constexpr WideNumber ShiftRight(WideNumber number, unsigned bits) {
  return ShiftRightPlain(number, bits);
}
#endif

} // namespace tq
