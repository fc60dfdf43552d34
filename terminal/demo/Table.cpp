#include "terminal/demo/Table.h"

#include <algorithm>

namespace demo {
namespace {

// The first code points of wide characters: CJK and full-width forms begin here. Good enough for
// the names of this market; a terminal's own table is finer.
constexpr unsigned kFirstWide = 0x2E80;

unsigned CodePoint(std::string_view text, size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  unsigned point = more == 0 ? lead : lead & (0x3Fu >> more);
  for (int i = 0; i < more && at < text.size(); ++i)
    point = point << 6 | (static_cast<unsigned char>(text[at++]) & 0x3Fu);
  return point;
}

std::string Blanks(std::string_view text, int cells) {
  return std::string(static_cast<size_t>(std::max(0, cells - CellWidth(text))), ' ');
}

} // namespace

int CellWidth(std::string_view utf8) {
  int cells = 0;
  for (size_t at = 0; at < utf8.size();)
    cells += CodePoint(utf8, at) >= kFirstWide ? 2 : 1;
  return cells;
}

std::string Padded(std::string_view utf8, int cells) {
  return std::string(utf8) + Blanks(utf8, cells);
}

std::string PaddedLeft(std::string_view utf8, int cells) {
  return Blanks(utf8, cells) + std::string(utf8);
}

} // namespace demo
