// The key under which a table holds a symbol: how it is cut out of an id, hashed and put in a chain.
#pragma once

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

inline SymbolKey MakeKey(std::string_view text) {
  const PackedText head = PackHead(text);
  std::uint64_t state = MixWords(MixWords(text.size(), head.low), head.high);
  for (std::size_t at = sizeof head; at < text.size(); at += sizeof(std::uint64_t))
    state = MixWords(state, PackWord(text.substr(at)));
  return {text, head, static_cast<std::uint32_t>(state >> 32)};
}

// A full id in its parts: the suffix is the text after the last "." and empty without one, the symbol the
// text before it, or all. A "." that is the second byte of a character does not count.
struct IdParts {
  std::string_view symbol;
  std::string_view suffix;
};
IdParts SplitId(std::string_view id);

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
