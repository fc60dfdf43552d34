#include "recovery/xml/Reference.h"

namespace tq {
namespace {

struct Entity {
  std::string_view text;
  char character;
};
constexpr Entity kEntities[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&apos;", '\''}, {"&quot;", '"'}};

constexpr char32_t kBeyondUnicode = 0x110000;

bool IsXmlCharacter(char32_t c) {
  if (c < 0x20)
    return c == '\t' || c == '\n' || c == '\r';
  return (c < 0xD800 || c > 0xDFFF) && c != 0xFFFE && c != 0xFFFF && c < kBeyondUnicode;
}

// 0 to 15, or 16 for what is no digit.
unsigned DigitOf(char c) {
  if (c >= '0' && c <= '9')
    return static_cast<unsigned>(c - '0');
  const char letter = static_cast<char>(c | 0x20);
  return letter >= 'a' && letter <= 'f' ? static_cast<unsigned>(letter - 'a' + 10) : 16;
}

// At "&#".
Reference ReadNumber(std::string_view text) {
  const bool hexadecimal = text.size() > 2 && text[2] == 'x';
  const std::size_t first = hexadecimal ? 3 : 2;
  const unsigned base = hexadecimal ? 16 : 10;
  char32_t value = 0;
  for (std::size_t i = first; i < text.size(); ++i) {
    if (text[i] == ';')
      return i > first && IsXmlCharacter(value) ? Reference{value, i + 1} : Reference{};
    const unsigned digit = DigitOf(text[i]);
    if (digit >= base)
      break;
    if (value < kBeyondUnicode)
      value = value * base + digit;
  }
  return {};
}

} // namespace

Reference ReadReference(std::string_view text) {
  if (text.starts_with("&#"))
    return ReadNumber(text);
  for (const Entity& entity : kEntities) {
    if (text.starts_with(entity.text))
      return {static_cast<unsigned char>(entity.character), entity.text.size()};
  }
  return {};
}

} // namespace tq
