// The key under which a table holds a symbol: how it is cut out of an id, hashed and put in a
// chain.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

#include "platform/framework/SeededHash.h"
#include "symbolid/PackedText.h"

namespace tq {

// Keys up to this size are told apart by their codes alone.
constexpr std::size_t kCodedBytes = sizeof(PackedText) - 1;

// A key with what a look-up compares before it looks at the text; see MakeKey.
struct SymbolKey {
  std::string_view text;
  PackedText code;    // see CodeOf
  std::uint32_t hash; // of all bytes
};

// The top byte of a code: the size of a key up to kCodedBytes, whose bytes are the others, or this.
constexpr std::uint64_t kLongKey = 0xff;
constexpr int kSizeShift = 56;

// A key in two words: all of nearly every key. A longer one has its first eight bytes and its size
// there.
inline PackedText CodeOf(std::size_t size, PackedText head) {
  const bool isLong = size > kCodedBytes;
  return {head.low, isLong ? kLongKey << kSizeShift | static_cast<std::uint32_t>(size)
                           : std::uint64_t{size} << kSizeShift | head.high};
}
inline std::size_t SizeOf(PackedText code) {
  const std::uint64_t size = code.high >> kSizeShift;
  return static_cast<std::size_t>(size != kLongKey ? size : static_cast<std::uint32_t>(code.high));
}

// The secret of this process, of which the hash of a key is made, so that nobody can choose ids
// that share a hash. Nothing that is stored or seen from outside depends on a hash.
extern const HashSeed kHashSeed;

// What MakeKey adds to the hash of a code for the bytes that are not in it.
std::uint64_t MixRest(std::uint64_t state, std::string_view text);

// Two products: one alone spreads ids that differ in a few digits well with most seeds only, with
// others it puts four of them where one should be.
inline std::uint64_t MixCode(PackedText code) {
  const std::uint64_t once = MixProduct(code.low ^ kHashSeed.low, code.high ^ kHashSeed.high);
  return MixProduct(once, kHashSeed.low);
}
// The hash of a key that is not longer than its code.
inline std::uint32_t HashOf(PackedText code) {
  return static_cast<std::uint32_t>(MixCode(code) >> 32);
}

// `head` is PackHead(text), for callers who have it.
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

// A full id in its parts: the suffix is the text after the last "." and empty without one, the
// symbol the text before it, or all. A "." that is the second byte of a character does not count.
struct IdParts {
  std::string_view symbol;
  std::string_view suffix;
};

// SplitId for ids that are long or not ASCII.
IdParts SplitLongId(std::string_view id);

// The position of the last "." in sixteen bytes of ASCII; past them all when there is none.
inline std::size_t LastDot(PackedText ascii) {
  const std::uint64_t lowDots = AsciiBytesEqual(ascii.low, '.');
  const std::uint64_t highDots = AsciiBytesEqual(ascii.high, '.');
  if ((lowDots | highDots) == 0)
    return std::string_view::npos;
  // Without a branch on the half, which differs from id to id.
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

// Whether a short id of ASCII has exactly one "."; false for all others.
inline bool HasSingleDot(std::string_view id, PackedText head) {
  if (id.size() > sizeof head || ((head.low | head.high) & kTopBits) != 0)
    return false;
  const std::uint64_t dots = AsciiBytesEqual(head.low, '.') >> 1 | AsciiBytesEqual(head.high, '.');
  return dots != 0 && (dots & (dots - 1)) == 0;
}

// The key of `id` in the table of an exchange: the symbol alone when the suffix is the exchange's
// name in any letter case; else the whole id, so that ids of a foreign exchange stay apart.
std::string_view KeyOf(std::string_view id, std::string_view exchName);

// How a table spreads its symbols over its chains.
enum class KeyHashMode {
  Numeric,      // by the leading number
  CharacterSum, // by the sum of the first bytes
  Domestic,     // exchanges 2 to 6 carry a mode of their own that spreads as CharacterSum does
};

KeyHashMode HashModeOf(int exchId);

constexpr int kBucketCount = 780;
// Bytes that the character sum takes in: longer keys that agree in these share a chain.
constexpr int kSummedBytes = 12;

// The chain of a key, 0 to 779. Seen from outside: look-ups by name go chain by chain.
int BucketOf(std::string_view key, KeyHashMode mode);

} // namespace tq
