#include "symboltable/SymbolKey.h"

#include <bit>
#include <cstdlib>

#include "platform/CodePage.h"
#include "symboltable/LeadingInt.h"
#include "symboltable/UpperText.h"

namespace tq {
namespace {

constexpr std::size_t NoDot = std::string_view::npos;

// Position of the last "." byte of a word's text, NoDot when there is none.
std::size_t LastDotByte(std::uint64_t word) {
  const std::uint64_t dots = BytesEqual(word, '.');
  return dots == 0 ? NoDot : static_cast<std::size_t>(7 - std::countl_zero(dots) / 8);
}

std::size_t LastDotByte(std::string_view id) {
  const PackedText head = PackHead(id);
  if (id.size() > sizeof head)
    return id.rfind('.');
  if (const std::size_t dot = LastDotByte(head.high); dot != NoDot)
    return dot + sizeof head.low;
  return LastDotByte(head.low);
}

// Position of the last ".", NoDot when there is none.
std::size_t LastDot(std::string_view id) {
  const std::size_t dot = LastDotByte(id);
  if (dot == NoDot || dot == 0 || !IsLeadByte(id[dot - 1]))
    return dot;
  const char* const found = FindLastChar(id.data(), id.data() + id.size(), '.');
  return found == nullptr ? NoDot : static_cast<std::size_t>(found - id.data());
}

} // namespace

IdParts SplitId(std::string_view id) {
  const std::size_t dot = LastDot(id);
  if (dot == NoDot)
    return {id, {}};
  return {id.substr(0, dot), id.substr(dot + 1)};
}

std::string_view KeyOf(std::string_view id, std::string_view exchName) {
  const std::size_t dot = LastDot(id);
  if (dot == NoDot || !EqualsNoCase(id.substr(dot + 1), exchName))
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
