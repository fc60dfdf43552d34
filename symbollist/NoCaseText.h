// Texts as keys of a hash table, letter case ignored: list ids and names, which files, imports and
// services choose.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/framework/SeededHash.h"

namespace tq {

struct NoCaseHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return SeededHashNoCase(text); }
};

struct NoCaseEqual {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const {
    return EqualNoCase(left.data(), left.size(), right.data(), right.size());
  }
};

} // namespace tq
