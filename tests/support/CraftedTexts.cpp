#include "tests/support/CraftedTexts.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace {

// What the C++ library does with each eight bytes (_Hash_bytes of libstdc++ for 64 bits), and how
// it is undone.
constexpr std::uint64_t kMultiplier = 0xc6a4a7935bd1e995u;
constexpr std::uint64_t kSeed = 0xc70f6907u;
constexpr std::size_t kTextBytes = 16;

constexpr std::uint64_t Inverse(std::uint64_t odd) {
  std::uint64_t inverse = odd;
  for (int i = 0; i < 6; ++i)
    inverse *= 2 - odd * inverse;
  return inverse;
}

// It is its own inverse, for the upper bits are left as they are.
constexpr std::uint64_t Shifted(std::uint64_t value) {
  return value ^ value >> 47;
}

constexpr std::uint64_t Mixed(std::uint64_t word) {
  return Shifted(word * kMultiplier) * kMultiplier;
}
constexpr std::uint64_t Unmixed(std::uint64_t word) {
  return Shifted(word * Inverse(kMultiplier)) * Inverse(kMultiplier);
}

// The second half that gives a text with this first half the hash of all.
std::uint64_t SecondHalf(std::uint64_t first) {
  constexpr std::uint64_t kWanted = 0x0123456789abcdefu;
  const std::uint64_t state = (kSeed ^ kTextBytes * kMultiplier ^ Mixed(first)) * kMultiplier;
  return Unmixed(state ^ kWanted);
}

} // namespace

std::vector<std::string> CraftedTexts(std::size_t count,
                                      const std::function<bool(const std::string&)>& wanted) {
  std::vector<std::string> texts;
  for (std::uint64_t number = 10'000'000; texts.size() < count; ++number) {
    std::string text = std::to_string(number);
    std::uint64_t first = 0;
    std::memcpy(&first, text.data(), sizeof first);
    const std::uint64_t second = SecondHalf(first);
    text.resize(kTextBytes);
    std::memcpy(text.data() + sizeof first, &second, sizeof second);
    if (text.find('\0') == std::string::npos && wanted(text))
      texts.push_back(text);
  }
  return texts;
}
