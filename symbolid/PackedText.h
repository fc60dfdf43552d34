// Short texts as numbers: ids are looked up by the hundred thousand, and two words compare and hash
// faster than a run of characters.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/WideNumber.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tq {

// The first eight bytes of a text, or all of them, the missing ones 0.
inline std::uint64_t PackWord(std::string_view text) {
  const char* const at = text.data();
  const std::size_t size = text.size();
  if (size >= sizeof(std::uint64_t)) {
    std::uint64_t word;
    std::memcpy(&word, at, sizeof word);
    return word;
  }
  if (size >= sizeof(std::uint32_t)) {
    // The two halves may overlap; where they do, they agree.
    const std::size_t shift = size - sizeof(std::uint32_t);
    std::uint32_t first;
    std::uint32_t last;
    std::memcpy(&first, at, sizeof first);
    std::memcpy(&last, at + shift, sizeof last);
    return first | std::uint64_t{last} << (8 * shift);
  }
  if (size == 0)
    return 0;
  // One to three bytes: the first, the middle and the last, which may be the same.
  const auto byte = [at](std::size_t i) {
    return std::uint64_t{static_cast<unsigned char>(at[i])} << (8 * i);
  };
  return byte(0) | byte(size / 2) | byte(size - 1);
}

// The first sixteen bytes.
struct PackedText {
  std::uint64_t low;
  std::uint64_t high;
  bool operator==(const PackedText&) const = default;
};

inline PackedText PackHead(std::string_view text) {
  constexpr std::size_t half = sizeof(std::uint64_t);
  return {PackWord(text), text.size() > half ? PackWord(text.substr(half)) : 0};
}

// PackHead of a text of kShortest to sixteen bytes, and its last eight bytes, of which a shorter
// text fills the upper ones; the others are 0.
struct ShortText {
  std::uint64_t low;
  std::uint64_t high;
  std::uint64_t tail;
};

constexpr std::size_t kShortest = sizeof(std::uint32_t);

// Four overlapping loads inside the text, and masks instead of branches on its length: lengths
// differ from id to id, and one mispredicted branch costs more than all of this.
inline ShortText PackShort(std::string_view text) {
  constexpr auto word = static_cast<std::int64_t>(sizeof(std::uint64_t));
  constexpr auto half = static_cast<std::int64_t>(kShortest);
  const auto load = [at = text.data()](std::int64_t position) {
    std::uint32_t bytes;
    std::memcpy(&bytes, at + position, sizeof bytes);
    return std::uint64_t{bytes};
  };
  const auto size = static_cast<std::int64_t>(text.size());
  const std::int64_t inHigh = (word - size) >> 63; // all bits for more than a word, else none
  const std::int64_t behind = (size - word) & inHigh;
  const std::int64_t missing = (word - size) & ~inHigh;
  const std::int64_t second = half - missing;
  const std::uint64_t low = load(0) | load(second) << 8 * second;
  const std::uint64_t tail = load(size - half) << 32 | load(behind) << 8 * missing;
  return {low, tail >> (8 * (word - behind) & 63) & static_cast<std::uint64_t>(inHigh), tail};
}

// The head of the first `size` bytes of a text with that head.
inline PackedText CutHead(PackedText head, std::size_t size) {
  constexpr std::size_t half = sizeof(std::uint64_t);
  if (size >= 2 * half)
    return head;
  const std::uint64_t kept = (std::uint64_t{1} << 8 * (size % half)) - 1; // of the word that is cut
  if (size < half)
    return {head.low & kept, 0};
  return {head.low, head.high & kept};
}

// What follows treats the eight bytes of a word at once.
constexpr std::uint64_t RepeatByte(std::uint8_t byte) {
  return 0x0101010101010101u * byte;
}
constexpr std::uint64_t kTopBits = RepeatByte(0x80);

// The top bit of each byte of `word` that is `byte`. Exact: the shorter form that lets a borrow run
// into the next byte would report neighbours, too.
constexpr std::uint64_t BytesEqual(std::uint64_t word, std::uint8_t byte) {
  const std::uint64_t difference = word ^ RepeatByte(byte);
  return ~(((difference & ~kTopBits) + ~kTopBits) | difference | ~kTopBits);
}

// The same for a word and a byte without top bits, in half the steps.
constexpr std::uint64_t AsciiBytesEqual(std::uint64_t ascii, std::uint8_t byte) {
  return ~((ascii ^ RepeatByte(byte)) + ~kTopBits) & kTopBits;
}

// The top bit of each byte that is an ASCII letter of lower case, in a word of ASCII: adding 0x1f
// sets the top bit of a byte from 'a' on, adding 5 that of one behind 'z'.
constexpr std::uint64_t LowerLetters(std::uint64_t ascii) {
  return (ascii + RepeatByte(0x1f)) & ~(ascii + RepeatByte(0x05)) & kTopBits;
}

#if defined(__SSE2__)
// A bit for each of sixteen bytes that is `byte`, the first byte's the lowest. `bytes` is aligned.
inline unsigned EqualBytes(const std::uint8_t* bytes, std::uint8_t byte) {
  const __m128i all = _mm_load_si128(reinterpret_cast<const __m128i*>(bytes));
  const __m128i wanted = _mm_set1_epi8(static_cast<char>(byte));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(all, wanted)));
}
#else
// The same on processors that have no instruction for it.
inline unsigned EqualBytes(const std::uint8_t* bytes, std::uint8_t byte) {
  unsigned equal = 0;
  for (unsigned i = 0; i < 16; ++i)
    equal |= static_cast<unsigned>(bytes[i] == byte) << i;
  return equal;
}
#endif

// Whether sixteen bytes are ASCII without a letter of lower case.
constexpr bool IsUpperAscii(PackedText head) {
  // A top bit disturbs what LowerLetters says, but then it is of no interest.
  return (((head.low | head.high) & kTopBits) | LowerLetters(head.low) | LowerLetters(head.high)) ==
         0;
}

// The upper and the lower half of a product, mixed: a hash of two words as long as nobody knows
// `left`.
inline std::uint64_t MixProduct(std::uint64_t left, std::uint64_t right) {
  const WideNumber product = Multiply(left, right);
  return product.high ^ product.low;
}

// One step of a hash, whose upper bits are the better ones.
inline std::uint64_t MixWords(std::uint64_t state, std::uint64_t word) {
  constexpr std::uint64_t multiplier = 0x9e3779b97f4a7c15u; // 2^64 by the golden ratio
  state = (state ^ word) * multiplier;
  return state ^ state >> 29;
}

} // namespace tq
