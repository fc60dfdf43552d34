#include "platform/Text.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tq {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

} // namespace

int LeadingInt(std::string_view text) {
  text = TrimmedFront(text);
  std::size_t at = 0;
  const bool negative = at < text.size() && text[at] == '-';
  if (negative || (at < text.size() && text[at] == '+'))
    ++at;
  // Capped beyond the range of int, so that no number of digits overflows 64 bits.
  constexpr std::int64_t tooLarge = std::int64_t{1} << 32;
  std::int64_t value = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at)
    value = std::min(value * 10 + (text[at] - '0'), tooLarge);
  constexpr std::int64_t lowest = std::numeric_limits<int>::min();
  constexpr std::int64_t highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(negative ? -value : value, lowest, highest));
}

void CutBefore(CString& text, char separator, CString& before) {
  if (text.IsEmpty())
    return;
  const int at = text.Find(separator);
  if (at < 0) {
    before = text;
    text.Empty();
    return;
  }
  const CString rest = text.Mid(at + 1);
  before = text.Left(at);
  text = rest;
}

} // namespace tq
