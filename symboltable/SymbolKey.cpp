#include "symboltable/SymbolKey.h"

#include <cstdlib>
#include <cstring>

#include "symboltable/LeadingInt.h"
#include "symboltable/UpperText.h"

namespace tq {
namespace {

constexpr std::uint64_t HashMultiplier = 0x9e3779b97f4a7c15u; // 2^64 by the golden ratio

std::uint32_t Load32(const char* at) {
  std::uint32_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

// Up to eight bytes as one number, the missing ones 0. The overlapping halves of four to seven
// bytes agree where they overlap, so they may be or-ed.
std::uint64_t LoadHead(const char* at, std::size_t size) {
  if (size >= sizeof(std::uint64_t)) {
    std::uint64_t word;
    std::memcpy(&word, at, sizeof word);
    return word;
  }
  if (size >= sizeof(std::uint32_t)) {
    const std::size_t overlap = size - sizeof(std::uint32_t);
    return Load32(at) | std::uint64_t{Load32(at + overlap)} << (8 * overlap);
  }
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < size; ++i)
    word |= std::uint64_t{static_cast<unsigned char>(at[i])} << (8 * i);
  return word;
}

std::uint64_t Mix(std::uint64_t state, std::uint64_t word) {
  state = (state ^ word) * HashMultiplier;
  return state ^ state >> 32;
}

} // namespace

SymbolKey MakeKey(std::string_view text) {
  const std::uint64_t head = LoadHead(text.data(), text.size());
  std::uint64_t state = Mix(text.size(), head);
  for (std::size_t at = sizeof head; at < text.size(); at += sizeof head)
    state = Mix(state, LoadHead(text.data() + at, text.size() - at));
  state = Mix(state, 0);
  return {text, head, static_cast<std::uint32_t>(state)};
}

namespace {

// Position of the last ".", npos when there is none. The byte behind a lead byte belongs to a
// character.
std::size_t LastDot(std::string_view id) {
  const std::size_t dot = id.rfind('.');
  if (dot == std::string_view::npos || dot == 0 || !IsLeadByte(id[dot - 1]))
    return dot;
  const char* const found = FindLastChar(id.data(), id.data() + id.size(), '.');
  return found == nullptr ? std::string_view::npos : static_cast<std::size_t>(found - id.data());
}

} // namespace

std::string_view SuffixOf(std::string_view id) {
  const std::size_t dot = LastDot(id);
  return dot == std::string_view::npos ? std::string_view() : id.substr(dot + 1);
}

std::string_view SymbolOf(std::string_view id) {
  return id.substr(0, LastDot(id));
}

std::string_view KeyOf(std::string_view id, std::string_view exchName) {
  const std::size_t dot = LastDot(id);
  if (dot == std::string_view::npos || !EqualsNoCase(id.substr(dot + 1), exchName))
    return id;
  return id.substr(0, dot);
}

KeyHashMode HashModeOf(int exchId) {
  if (exchId == 1)
    return KeyHashMode::Numeric;
  return exchId >= 2 && exchId <= 6 ? KeyHashMode::Domestic : KeyHashMode::CharacterSum;
}

int BucketOf(std::string_view key, KeyHashMode mode) {
  if (mode == KeyHashMode::Numeric)
    return std::abs(LeadingInt(key) % BucketCount);
  int sum = 0;
  for (const char c : key.substr(0, SummedBytes))
    sum += static_cast<unsigned char>(c);
  return sum % BucketCount;
}

} // namespace tq
