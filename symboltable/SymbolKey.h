// The key under which a table holds a symbol: how it is cut out of an id, hashed and put in a chain.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

#include "symboltable/PackedText.h"

namespace tq {

// A key with what a look-up compares before it looks at the text; see MakeKey.
struct SymbolKey {
  std::string_view text;
  PackedText head;    // the first sixteen bytes: all of nearly every key
  std::uint32_t hash; // of all bytes
};

// `head` is PackHead(text), for callers who have it.
inline SymbolKey MakeKey(std::string_view text, PackedText head) {
  std::uint64_t state = MixWords(MixWords(text.size(), head.low), head.high);
  for (std::size_t at = sizeof head; at < text.size(); at += sizeof(std::uint64_t))
    state = MixWords(state, PackWord(text.substr(at)));
  return {text, head, static_cast<std::uint32_t>(state >> 32)};
}
inline SymbolKey MakeKey(std::string_view text) {
  return MakeKey(text, PackHead(text));
}

// A full id in its parts: the suffix is the text after the last "." and empty without one, the symbol the
// text before it, or all. A "." that is the second byte of a character does not count.
struct IdParts {
  std::string_view symbol;
  std::string_view suffix;
};

// SplitId for ids that are long or not ASCII.
IdParts SplitLongId(std::string_view id);

inline IdParts SplitId(std::string_view id, PackedText head) {
  if (id.size() > sizeof head || ((head.low | head.high) & TopBits) != 0)
    return SplitLongId(id);
  const std::uint64_t lowDots = BytesEqual(head.low, '.');
  const std::uint64_t highDots = BytesEqual(head.high, '.');
  if ((lowDots | highDots) == 0)
    return {id, {}};
  const int zeros = highDots != 0 ? std::countl_zero(highDots) : 64 + std::countl_zero(lowDots);
  const std::size_t dot = sizeof head - 1 - static_cast<std::size_t>(zeros) / 8;
  return {{id.data(), dot}, {id.data() + dot + 1, id.size() - dot - 1}};
}
inline IdParts SplitId(std::string_view id) {
  return SplitId(id, PackHead(id));
}

// The key of `id` in the table of an exchange: the symbol alone when the suffix is the exchange's name
// in any letter case; else the whole id, so that ids of a foreign exchange stay apart.
std::string_view KeyOf(std::string_view id, std::string_view exchName);

// How a table spreads its symbols over its chains.
enum class KeyHashMode {
  Numeric,      // by the leading number
  CharacterSum, // by the sum of the first bytes
  Domestic,     // exchanges 2 to 6 carry a mode of their own that spreads as CharacterSum does
};

KeyHashMode HashModeOf(int exchId);

constexpr int BucketCount = 780;
// Bytes that the character sum takes in: longer keys that agree in these share a chain.
constexpr int SummedBytes = 12;

// The chain of a key, 0 to 779. Seen from outside: look-ups by name go chain by chain.
int BucketOf(std::string_view key, KeyHashMode mode);

} // namespace tq
