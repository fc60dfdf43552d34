#include "platform/xml/XmlCursor.h"

#include <algorithm>
#include <iterator>

#include "platform/Encoding.h"
#include "platform/xml/XmlNames.h"
#include "platform/xml/XmlText.h"

namespace tq {
namespace {

constexpr char32_t kCarriedEnd = kCarriedBase + 0x10000;

// The character that the reference at `at`, "&#...;", stands for; `at` moves behind it. 0 for
// anything else, which the DOM judges. A character beyond the carried ones may come out as another
// such.
char32_t ReadReference(const char*& at, const char* end) {
  const char* p = at + 1;
  if (p == end || *p != '#')
    return 0;
  ++p;
  const bool hexadecimal = p != end && *p == 'x';
  if (hexadecimal)
    ++p;
  char32_t value = 0;
  for (; p != end && *p != ';'; ++p) {
    const char letter = static_cast<char>(*p | 0x20);
    const bool digit = *p >= '0' && *p <= '9';
    if (!digit && !(hexadecimal && letter >= 'a' && letter <= 'f'))
      return 0;
    const auto number = static_cast<char32_t>(digit ? *p - '0' : letter - 'a' + 10);
    if (value < kCarriedEnd) // beyond it stays beyond it, and nothing overflows
      value = value * (hexadecimal ? 16 : 10) + number;
  }
  if (p == end)
    return 0;
  at = p + 1;
  return value;
}

} // namespace

bool XmlCursor::Take(std::string_view wanted) {
  if (!StartsWith(wanted))
    return false;
  at_ += wanted.size();
  return true;
}

bool XmlCursor::TakeBlanks() {
  const char* const before = at_;
  at_ = std::find_if(at_, end_, [](char c) { return (ClassOf(c) & Blank) == 0; });
  return at_ != before;
}

void XmlCursor::TakeAmpersand() {
  const char* behind = at_;
  const char32_t character =
      charset_ == XmlCharset::Carried ? ReadReference(behind, end_) : char32_t{0};
  if (character < kCarriedBase || character >= kCarriedEnd) {
    ++at_;
    return;
  }
  const auto length = static_cast<std::size_t>(behind - at_);
  at_ = behind;
  ReplaceTaken(length, "?");
}

bool XmlCursor::SkipTo(unsigned stops) {
  stops |= NotAscii | Forbidden;
  for (;;) {
    at_ = std::find_if(at_, end_, [stops](char c) { return (ClassOf(c) & stops) != 0; });
    const unsigned found = Class();
    if ((found & Forbidden) != 0)
      return false;
    if ((found & NotAscii) == 0)
      return true;
    if (!TakeBeyondAscii())
      return false;
  }
}

bool XmlCursor::TakeUtf8() {
  const std::size_t length = Utf8CharLength(at_, end_);
  at_ += length;
  return length != 0;
}

// Takes the double-byte characters that stand here, many at a time.
bool XmlCursor::TakeCarried() {
  constexpr std::size_t many = 256;
  constexpr std::size_t bytesOfOne = 4;
  char bytes[many * bytesOfOne];
  char* out = bytes;
  const char* const start = at_;
  while (out != std::end(bytes) && (Class() & NotAscii) != 0) {
    const std::size_t length = AnsiCharLength(codePage_, at_, end_);
    if (length == 0)
      return false;
    const char32_t first = static_cast<unsigned char>(at_[0]);
    const char32_t pair = length == 1 ? first : first << 8 | static_cast<unsigned char>(at_[1]);
    out = PutUtf8Char(kCarriedBase | pair, out);
    at_ += length;
  }
  ReplaceTaken(static_cast<std::size_t>(at_ - start),
               {bytes, static_cast<std::size_t>(out - bytes)});
  return true;
}

bool XmlCursor::TakeBeyondAscii() {
  switch (charset_) {
  case XmlCharset::Utf8:
    return TakeUtf8();
  case XmlCharset::Carried:
    return TakeCarried();
  default:
    return false;
  }
}

// At a byte beyond ASCII in a name.
bool XmlCursor::TakeNameCharacter(bool first) {
  const char* character = at_;
  std::string decoded;
  switch (charset_) {
  case XmlCharset::Utf8:
    if (!TakeUtf8())
      return false;
    break;
  case XmlCharset::Carried: {
    const std::size_t length = AnsiCharLength(codePage_, at_, end_);
    if (length == 0 || !DecodeText(codePage_, {at_, length}, decoded) || decoded.empty())
      return false;
    at_ += length;
    character = decoded.data();
    break;
  }
  case XmlCharset::Ascii:
    return false;
  }
  return IsNameCharacter(TakeUtf8Char(character), first);
}

bool XmlCursor::TakeName(std::string_view& name, bool& foreign) {
  const char* const start = at_;
  foreign = false;
  while (!AtEnd()) {
    const bool first = at_ == start;
    if ((Class() & NotAscii) != 0) {
      if (!TakeNameCharacter(first))
        return false;
      foreign = true;
      continue;
    }
    if ((Class() & (first ? NameStart : NamePart)) == 0)
      break;
    foreign |= *at_ == ':';
    ++at_;
  }
  name = {start, static_cast<std::size_t>(at_ - start)};
  return true;
}

void XmlCursor::ReplaceTaken(std::size_t length, std::string_view with) {
  out_.append(copied_, at_ - length);
  out_.append(with);
  copied_ = at_;
}

void XmlCursor::Finish() {
  if (!out_.empty())
    out_.append(copied_, at_);
}

} // namespace tq
