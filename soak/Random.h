// All choices of one life come from its seed.
#pragma once

#include <cstdint>
#include <iterator>
#include <random>

namespace soak {

class Random {
public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  // 0 to `count` - 1.
  int Draw(int count) {
    return static_cast<int>(engine_() % static_cast<std::uint64_t>(count < 1 ? 1 : count));
  }
  // Once in so many times; never for 0.
  bool OnceIn(int times) { return times > 0 && Draw(times) == 0; }
  template <typename Choices> const auto& One(const Choices& choices) {
    return std::begin(choices)[Draw(static_cast<int>(std::size(choices)))];
  }
  std::uint64_t Seed() { return engine_(); }

private:
  std::mt19937_64 engine_;
};

} // namespace soak
