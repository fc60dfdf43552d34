#include "terminal/posix/BoxLines.h"

#include <algorithm>

namespace standin {
namespace {

constexpr int kMostLetters = 52;
constexpr std::size_t kMostLines = 24;

// Of the character at the start of the text, in bytes.
std::size_t LengthOf(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
    ++length;
  return length;
}

int WidthOf(std::string_view text) {
  int width = 0;
  for (std::size_t at = 0; at < text.size(); at += LengthOf(text.substr(at)))
    width += static_cast<unsigned char>(text[at]) < 0x80 ? 1 : 2;
  return width;
}

// How much of a line goes before the break, in bytes.
std::size_t FirstPart(std::string_view line) {
  std::size_t at = 0;
  std::size_t gap = 0;
  for (int width = 0; at < line.size();) {
    const std::size_t length = LengthOf(line.substr(at));
    width += WidthOf(line.substr(at, length));
    if (width > kMostLetters)
      return gap != 0 ? gap : at;
    at += length;
    if (line[at - 1] == ' ' || line[at - 1] == ',' || length > 1)
      gap = at;
  }
  return at;
}

} // namespace

BoxLines BreakForBox(std::string_view utf8) {
  BoxLines result;
  while (!utf8.empty() && result.lines.size() < kMostLines) {
    const std::string_view line = utf8.substr(0, utf8.find('\n'));
    const std::size_t part = FirstPart(line);
    result.lines.emplace_back(line.substr(0, part));
    utf8.remove_prefix(part);
    if (part == line.size() && !utf8.empty())
      utf8.remove_prefix(1); // the line feed
  }
  if (!utf8.empty())
    result.lines.back() = "...";
  for (const std::string& line : result.lines)
    result.widest = std::max(result.widest, WidthOf(line));
  return result;
}

} // namespace standin
