#include "platform/framework/SeededHash.h"

#include <bit>
#include <chrono>
#include <cstring>
#include <exception>
#include <random>

namespace tq {
namespace {

// 0 when the system has no source of random numbers.
uint64_t RandomWord() {
  try {
    std::random_device source;
    return static_cast<uint64_t>(source()) << 32 | source();
  } catch (const std::exception&) {
    return 0;
  }
}

// Differs from start to start even without a source of random numbers: the clock and the address at
// which the system loads the library.
uint64_t StartWord() {
  static const char place = 0;
  const auto time = std::chrono::steady_clock::now().time_since_epoch().count();
  return std::rotl(static_cast<uint64_t>(time), 20) ^ reinterpret_cast<uintptr_t>(&place);
}

HashSeed MakeSeed() {
  const uint64_t start = StartWord();
  const uint64_t low = RandomWord() ^ start;
  return {low | 1, (RandomWord() ^ std::rotl(start, 32)) | 1};
}

// SipHash-1-3: one round a word, three at the end. Made for hash tables that may be attacked.
class Sip {
public:
  explicit Sip(const HashSeed& seed)
      : a_(seed.low ^ 0x736F6D6570736575u), b_(seed.high ^ 0x646F72616E646F6Du),
        c_(seed.low ^ 0x6C7967656E657261u), d_(seed.high ^ 0x7465646279746573u) {}

  void Add(uint64_t word) {
    d_ ^= word;
    Round();
    a_ ^= word;
  }

  uint64_t Value() {
    c_ ^= 0xFF;
    Round();
    Round();
    Round();
    return a_ ^ b_ ^ c_ ^ d_;
  }

private:
  void Round() {
    a_ += b_;
    c_ += d_;
    b_ = std::rotl(b_, 13) ^ a_;
    d_ = std::rotl(d_, 16) ^ c_;
    a_ = std::rotl(a_, 32);
    c_ += b_;
    a_ += d_;
    b_ = std::rotl(b_, 17) ^ c_;
    d_ = std::rotl(d_, 21) ^ a_;
    c_ = std::rotl(c_, 32);
  }

  uint64_t a_;
  uint64_t b_;
  uint64_t c_;
  uint64_t d_;
};

uint64_t AsIs(uint64_t word) {
  return word;
}

constexpr uint64_t EachByte(uint64_t byte) {
  return byte * 0x0101010101010101u;
}

// Lower-cases the ASCII letters among eight bytes. Trail bytes that look like letters are changed
// too, which is harmless: equal texts still have equal values.
uint64_t Folded(uint64_t word) {
  const uint64_t low = word & EachByte(0x7F);
  const uint64_t fromA = low + EachByte(0x80 - 'A');
  const uint64_t aboveZ = low + EachByte(0x7F - 'Z');
  return word | ((fromA & ~aboveZ & ~word & EachByte(0x80)) >> 2);
}

template <uint64_t (*CHANGE)(uint64_t)> size_t Hash(std::string_view text) {
  Sip sip(ProcessHashSeed());
  size_t at = 0;
  for (; text.size() - at >= sizeof(uint64_t); at += sizeof(uint64_t)) {
    uint64_t word;
    std::memcpy(&word, text.data() + at, sizeof word);
    sip.Add(CHANGE(word));
  }
  uint64_t rest = 0;
  if (at != text.size())
    std::memcpy(&rest, text.data() + at, text.size() - at);
  sip.Add(CHANGE(rest));
  sip.Add(text.size());
  return static_cast<size_t>(sip.Value());
}

} // namespace

const HashSeed& ProcessHashSeed() {
  static const HashSeed seed = MakeSeed();
  return seed;
}

size_t SeededHash(const char* text, size_t length) {
  return Hash<AsIs>({text, length});
}

size_t SeededHashNoCase(const char* text, size_t length) {
  return Hash<Folded>({text, length});
}

} // namespace tq
