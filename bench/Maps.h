// The hash maps that look-ups are compared with.
#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace bench {

struct TextHash {
  using is_transparent = void;
  using is_avalanching = void; // tells the flat map not to mix the hash again
  std::size_t operator()(std::string_view text) const noexcept {
    return std::hash<std::string_view>{}(text);
  }
};

using FlatMap = boost::unordered_flat_map<std::string, std::string, TextHash, std::equal_to<>>;
using StdMap = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;

} // namespace bench
