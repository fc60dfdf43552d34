#include "symbolid/SymbolKey.h"

#include <cstdlib>

#include "platform/CodePage.h"
#include "platform/Text.h"

namespace tq {

const HashSeed kHashSeed = ProcessHashSeed();

std::uint64_t MixRest(std::uint64_t state, std::string_view text) {
  for (std::size_t at = sizeof state; at < text.size(); at += sizeof state)
    state = MixProduct(state ^ PackWord(text.substr(at)), kHashSeed.low);
  return state;
}

IdParts SplitLongId(std::string_view id) {
  const char* const end = id.data() + id.size();
  const char* const dot = FindLastChar(id.data(), end, '.');
  if (dot == nullptr)
    return {id, {}};
  const auto size = static_cast<std::size_t>(dot - id.data());
  return {id.substr(0, size), id.substr(size + 1)};
}

std::string_view KeyOf(std::string_view id, std::string_view exchName) {
  const auto [symbol, suffix] = SplitId(id);
  const bool hasSuffix = symbol.size() != id.size();
  return hasSuffix && EqualsNoCase(suffix, exchName) ? symbol : id;
}

KeyHashMode HashModeOf(int exchId) {
  if (exchId == 1)
    return KeyHashMode::Numeric;
  return exchId >= 2 && exchId <= 6 ? KeyHashMode::Domestic : KeyHashMode::CharacterSum;
}

int BucketOf(std::string_view key, KeyHashMode mode) {
  if (mode == KeyHashMode::Numeric)
    return std::abs(LeadingInt(key) % kBucketCount);
  int sum = 0;
  for (const char c : key.substr(0, kSummedBytes))
    sum += static_cast<unsigned char>(c);
  return sum % kBucketCount;
}

} // namespace tq
