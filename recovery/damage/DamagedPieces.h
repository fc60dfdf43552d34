// Takes apart what stands between two places of a damaged file where a list begins for sure: it can
// be the remains of several lists.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tq {

struct Extent {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The remains in order, one at least. They are apart where an attribute comes a second time, or
// comes too late, behind a control byte, a line end, or where another list seems to go on in the
// middle. An attribute's beginning within a name is none of these.
std::vector<Extent> PiecesOf(std::string_view text, Extent remains);

} // namespace tq
