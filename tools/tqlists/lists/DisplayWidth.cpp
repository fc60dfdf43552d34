#include "tools/tqlists/lists/DisplayWidth.h"

#include <algorithm>
#include <iterator>

#include "platform/Encoding.h"

namespace tqlists {
namespace {

struct Range {
  char32_t first, last;
};

constexpr Range kWide[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x4DBF},   {0x4E00, 0xA4CF}, {0xA960, 0xA97F},
    {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60}, {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};
constexpr Range kNone[] = {
    {0x0300, 0x036F}, {0x200B, 0x200F}, {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}};

template <std::size_t SIZE> bool IsIn(char32_t character, const Range (&ranges)[SIZE]) {
  return std::any_of(std::begin(ranges), std::end(ranges), [&](const Range& range) {
    return character >= range.first && character <= range.last;
  });
}

std::size_t WidthOf(char32_t character) {
  if (IsIn(character, kNone))
    return 0;
  return IsIn(character, kWide) ? 2 : 1;
}

} // namespace

std::size_t DisplayWidth(std::string_view utf8) {
  std::size_t width = 0;
  const char* const end = utf8.data() + utf8.size();
  for (const char* at = utf8.data(); at != end;)
    width += WidthOf(tq::TakeUtf8Char(at));
  return width;
}

std::string Padded(std::string_view utf8, std::size_t columns) {
  const std::size_t width = DisplayWidth(utf8);
  return std::string(utf8) + std::string(columns > width ? columns - width : 0, ' ');
}

} // namespace tqlists
