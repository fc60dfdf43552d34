// The key under which a table holds a symbol: how it is cut out of an id, hashed and put in a
// chain.
#pragma once

#include <cstdint>
#include <string_view>

namespace tq {

// A key with what a look-up compares before it looks at the text.
struct SymbolKey {
  std::string_view text;
  std::uint64_t head; // the first eight bytes, padded with NUL
  std::uint32_t hash; // of all bytes
};

SymbolKey MakeKey(std::string_view text);

// The part of a full id after the last ".", or empty.
std::string_view SuffixOf(std::string_view id);
// The part before the last ".", or all of it.
std::string_view SymbolOf(std::string_view id);

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

constexpr int BucketCount = 780;
// Bytes that the character sum takes in: longer keys that agree in these share a chain.
constexpr int SummedBytes = 12;

// The chain of a key, 0 to 779. Seen from outside: look-ups by name go chain by chain.
int BucketOf(std::string_view key, KeyHashMode mode);

} // namespace tq
