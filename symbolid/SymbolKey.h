// The key under which a table holds a symbol: how it is taken from an id, hashed, and assigned to a
// chain.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

#include "platform/framework/SeededHash.h"
#include "symbolid/PackedText.h"

namespace tq {

// Keys up to this size are equal exactly when their codes are.
constexpr std::size_t kCodedBytes = sizeof(PackedText) - 1;

// A key with what a look-up compares before the text itself; see MakeKey.
struct SymbolKey {
  std::string_view text;
  PackedText code;    // see CodeOf
  std::uint32_t hash; // of all bytes
};

// The top byte of a code is the size of a key up to kCodedBytes, and the other bytes are the key.
// For longer keys the top byte is this.
constexpr std::uint64_t kLongKey = 0xff;
constexpr int kSizeShift = 56;

// A key in two words, which hold nearly every key completely. Of a longer key they hold the first
// eight bytes and the size.
inline PackedText CodeOf(std::size_t size, PackedText head) {
  const bool isLong = size > kCodedBytes;
  return {head.low, isLong ? kLongKey << kSizeShift | static_cast<std::uint32_t>(size)
                           : std::uint64_t{size} << kSizeShift | head.high};
}
inline std::size_t SizeOf(PackedText code) {
  const std::uint64_t size = code.high >> kSizeShift;
  return static_cast<std::size_t>(size != kLongKey ? size : static_cast<std::uint32_t>(code.high));
}

// The process's random hash seed, so that nobody can craft ids whose hashes collide. Hashes are
// never stored and affect nothing that is visible from outside.
extern const HashSeed kHashSeed;

// Continues the hash of a code with the bytes of a long key that are not in the code.
std::uint64_t MixRest(std::uint64_t state, std::string_view text);

// Two multiplications: with a single one, some seeds spread ids that differ in a few digits so
// badly that buckets get four times their share.
inline std::uint64_t MixCode(PackedText code) {
  const std::uint64_t once = MixProduct(code.low ^ kHashSeed.low, code.high ^ kHashSeed.high);
  return MixProduct(once, kHashSeed.low);
}
// The hash of a key that is not longer than its code.
inline std::uint32_t HashOf(PackedText code) {
  return static_cast<std::uint32_t>(MixCode(code) >> 32);
}

// `head` is PackHead(text), for callers that have it already.
inline SymbolKey MakeKey(std::string_view text, PackedText head) {
  const PackedText code = CodeOf(text.size(), head);
  if (text.size() <= kCodedBytes)
    return {text, code, HashOf(code)};
  const std::uint64_t state = MixRest(MixCode(code), text);
  return {text, code, static_cast<std::uint32_t>(state >> 32)};
}
inline SymbolKey MakeKey(std::string_view text) {
  return MakeKey(text, PackHead(text));
}

// The parts of a full id: the suffix is the text after the last ".", the symbol the text before it.
// Without a "." the suffix is empty and the symbol is the whole id. A "." that is the second byte
// of a character does not count.
struct IdParts {
  std::string_view symbol;
  std::string_view suffix;
};

// SplitId for ids that are long or not ASCII.
IdParts SplitLongId(std::string_view id);

// The position of the last "." in sixteen bytes of ASCII; npos when there is none.
inline std::size_t LastDot(PackedText ascii) {
  const std::uint64_t lowDots = AsciiBytesEqual(ascii.low, '.');
  const std::uint64_t highDots = AsciiBytesEqual(ascii.high, '.');
  if ((lowDots | highDots) == 0)
    return std::string_view::npos;
  const bool isHigh = highDots != 0;
  const int zeros = std::countl_zero(isHigh ? highDots : lowDots);
  return (isHigh ? 15u : 7u) - static_cast<std::size_t>(zeros) / 8;
}

inline IdParts SplitId(std::string_view id, PackedText head) {
  if (id.size() > sizeof head || ((head.low | head.high) & kTopBits) != 0)
    return SplitLongId(id);
  const std::size_t dot = LastDot(head);
  if (dot >= id.size())
    return {id, {}};
  return {{id.data(), dot}, {id.data() + dot + 1, id.size() - dot - 1}};
}
inline IdParts SplitId(std::string_view id) {
  return SplitId(id, PackHead(id));
}

// Whether an id is ASCII of at most sixteen bytes with exactly one ".".
inline bool HasSingleDot(std::string_view id, PackedText head) {
  if (id.size() > sizeof head || ((head.low | head.high) & kTopBits) != 0)
    return false;
  const std::uint64_t dots = AsciiBytesEqual(head.low, '.') >> 1 | AsciiBytesEqual(head.high, '.');
  return dots != 0 && (dots & (dots - 1)) == 0;
}

// The key of `id` in the table of an exchange: the symbol when the suffix is the exchange's name in
// any letter case; else the whole id, so that ids of other exchanges stay distinct.
std::string_view KeyOf(std::string_view id, std::string_view exchName);

// How a table assigns symbols to chains.
enum class KeyHashMode {
  Numeric,      // by the leading number
  CharacterSum, // by the sum of the first bytes
  Domestic,     // of exchanges 2 to 6; the same as CharacterSum
};

KeyHashMode HashModeOf(int exchId);

constexpr int kBucketCount = 780;
// The number of leading bytes that the character sum covers.
constexpr int kSummedBytes = 12;

// The chain of a key, 0 to 779. Visible from outside: look-ups by name go chain by chain.
int BucketOf(std::string_view key, KeyHashMode mode);

} // namespace tq
