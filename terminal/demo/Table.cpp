#include "terminal/demo/Table.h"

#include <algorithm>

namespace demo {
namespace {

// Wide characters begin about here: CJK and full-width forms. Good enough for the names of this
// market; a terminal's own table is finer.
constexpr unsigned kFirstWide = 0x2E80;

unsigned CodePoint(std::string_view text, size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  unsigned point = more == 0 ? lead : lead & (0x3Fu >> more);
  for (int i = 0; i < more && at < text.size(); ++i)
    point = point << 6 | (static_cast<unsigned char>(text[at++]) & 0x3Fu);
  return point;
}

// The number of leading bytes that fit, at least one character.
size_t FittingBytes(std::string_view text, int cells) {
  size_t fitting = 0;
  for (size_t at = 0; at < text.size();) {
    cells -= CodePoint(text, at) >= kFirstWide ? 2 : 1;
    if (cells < 0 && fitting > 0)
      break;
    fitting = at;
  }
  return fitting;
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

std::string Fitted(std::string_view utf8, int cells) {
  if (CellWidth(utf8) <= cells)
    return std::string(utf8);
  return std::string(utf8.substr(0, FittingBytes(utf8, cells - 2))) + "..";
}

std::string FittedList(std::string_view utf8, char separator, int cells) {
  if (CellWidth(utf8) <= cells)
    return std::string(utf8);
  const std::string_view fitting = utf8.substr(0, FittingBytes(utf8, cells - 2));
  const size_t last = fitting.rfind(separator);
  return last == std::string_view::npos ? Fitted(utf8, cells)
                                        : std::string(fitting.substr(0, last + 1)) + "..";
}

std::string Wrapped(std::string_view utf8, int cells, std::string_view indent) {
  std::string lines(indent);
  int room = cells - CellWidth(indent);
  while (CellWidth(utf8) > room) {
    size_t bytes = FittingBytes(utf8, room);
    const size_t gap = utf8.find_last_of(" ,", bytes - 1);
    if (gap != std::string_view::npos && gap > 0)
      bytes = gap + 1;
    const size_t shown = utf8[bytes - 1] == ' ' ? bytes - 1 : bytes;
    lines.append(utf8.substr(0, shown)).append("\n").append(indent).append("    ");
    utf8.remove_prefix(bytes);
    room = cells - CellWidth(indent) - 4;
  }
  return lines.append(utf8);
}

} // namespace demo
