#include "symboltable/SymbolKey.h"

#include <chrono>
#include <cstdlib>
#include <random>

#include "platform/CodePage.h"
#include "symboltable/LeadingInt.h"
#include "symboltable/UpperText.h"

namespace tq {
namespace {

// 0 where the system has no source.
std::uint64_t RandomWord() {
  try {
    std::random_device source;
    return std::uint64_t{source()} << 32 | source();
  } catch (const std::exception&) {
    return 0;
  }
}

// What differs from one start to the next: where the system puts the library, its clock, and its
// source of random numbers where it has one.
HashSeed MakeSeed() {
  const auto time = std::chrono::steady_clock::now().time_since_epoch().count();
  std::uint64_t state =
      MixWords(reinterpret_cast<std::uintptr_t>(&kHashSeed), static_cast<std::uint64_t>(time));
  const auto next = [&state] {
    state = MixWords(state, RandomWord());
    return state | 1; // a zero would be a factor that forgets the other
  };
  const std::uint64_t low = next();
  return {low, next()};
}

} // namespace

const HashSeed kHashSeed = MakeSeed();

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
