// Where a byte stands in a text, for messages.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tqlists {

struct Place {
  std::size_t line = 1;
  std::size_t column = 1; // bytes
};

// Places of rising offsets, found in one walk.
class PlaceFinder {
public:
  explicit PlaceFinder(std::string_view text) : text_(text) {}

  // `offset` is not smaller than at the call before.
  Place Find(std::size_t offset) {
    offset = std::min(offset, text_.size());
    for (; at_ < offset; ++at_) {
      place_.column = text_[at_] == '\n' ? 1 : place_.column + 1;
      place_.line += text_[at_] == '\n' ? 1 : 0;
    }
    return place_;
  }

private:
  const std::string_view text_;
  std::size_t at_ = 0;
  Place place_;
};

} // namespace tqlists
