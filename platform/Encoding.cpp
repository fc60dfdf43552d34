#include "platform/Encoding.h"

#include "platform/CodePage.h"

namespace tq {
namespace {

unsigned Byte(const char* at) {
  return static_cast<unsigned char>(*at);
}

bool IsContinuation(const char* at) {
  return (Byte(at) & 0xC0) == 0x80;
}

bool Within(unsigned byte, unsigned first, unsigned last) {
  return byte >= first && byte <= last;
}

std::size_t LengthByFirstByte(unsigned first) {
  if (Within(first, 0xC2, 0xDF))
    return 2;
  if (Within(first, 0xE0, 0xEF))
    return 3;
  return Within(first, 0xF0, 0xF4) ? 4 : 0;
}

bool IsAllowed(char32_t character, std::size_t length) {
  constexpr char32_t shortest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  const bool noCharacter = character == 0xFFFE || character == 0xFFFF;
  return character >= shortest[length] && character <= 0x10FFFF && !surrogate && !noCharacter;
}

bool IsTrail(unsigned codePage, unsigned byte) {
  if (codePage == kCodePageBig5)
    return Within(byte, 0x40, 0x7E) || Within(byte, 0xA1, 0xFE);
  if (codePage == kCodePageGbk)
    return Within(byte, 0x40, 0x7E) || Within(byte, 0x80, 0xFE);
  return byte >= 0x40;
}

constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";
constexpr std::string_view kUtf32Mark{"\xFF\xFE\0\0", 4};

class Utf16Units {
public:
  // `text` is the text behind the mark, of even length.
  Utf16Units(std::string_view text, bool little) : text_(text), little_(little) {}

  bool AtEnd() const { return at_ == text_.size(); }
  char32_t Peek() const {
    const auto first = static_cast<unsigned char>(text_[at_]);
    const auto second = static_cast<unsigned char>(text_[at_ + 1]);
    return little_ ? second * 256U + first : first * 256U + second;
  }
  char32_t Take() {
    const char32_t unit = Peek();
    at_ += 2;
    return unit;
  }

private:
  const std::string_view text_;
  const bool little_;
  std::size_t at_ = 0;
};

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

std::size_t Utf8CharLength(const char* at, const char* end) {
  const std::size_t length = LengthByFirstByte(Byte(at));
  if (length == 0 || static_cast<std::size_t>(end - at) < length)
    return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(at + i))
      return 0;
  }
  return IsAllowed(TakeUtf8Char(at), length) ? length : 0;
}

char32_t TakeUtf8Char(const char*& at) {
  const unsigned first = Byte(at);
  const std::size_t length = first < 0x80 ? 1 : LengthByFirstByte(first);
  char32_t character = length < 2 ? first : first & (0x7FU >> length);
  ++at;
  for (std::size_t i = 1; i < length; ++i, ++at)
    character = character << 6 | (Byte(at) & 0x3F);
  return character;
}

char* PutUtf8Char(char32_t character, char* bytes) {
  bytes[0] = static_cast<char>(0xF0 | character >> 18);
  bytes[1] = static_cast<char>(0x80 | (character >> 12 & 0x3F));
  bytes[2] = static_cast<char>(0x80 | (character >> 6 & 0x3F));
  bytes[3] = static_cast<char>(0x80 | (character & 0x3F));
  return bytes + 4;
}

void AppendUtf8(char32_t character, std::string& utf8) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
  } else if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | character >> 6);
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    utf8 += static_cast<char>(0xE0 | character >> 12);
    utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    char bytes[4];
    utf8.append(bytes, PutUtf8Char(character, bytes));
  }
}

std::size_t AnsiCharLength(unsigned codePage, const char* at, const char* end) {
  const bool chinese = codePage == kCodePageBig5 || codePage == kCodePageGbk;
  const unsigned first = Byte(at);
  const bool lead = chinese ? Within(first, 0x81, 0xFE) : IsLeadByte(*at);
  if (lead)
    return end - at > 1 && IsTrail(codePage, Byte(at + 1)) ? 2 : 0;
  const bool single = !chinese || (codePage == kCodePageGbk && first == 0x80); // the euro sign
  return single ? 1 : 0;
}

bool IsUtf16(std::string_view file) {
  return (file.starts_with(kLittleMark) && !file.starts_with(kUtf32Mark)) ||
         file.starts_with(kBigMark);
}

bool DecodeUtf16(std::string_view file, std::string& utf8) {
  utf8.clear();
  if (file.size() % 2 != 0)
    return false;
  Utf16Units units(file.substr(kLittleMark.size()), file.starts_with(kLittleMark));
  while (!units.AtEnd()) {
    char32_t character = units.Take();
    if (IsLowSurrogate(character) ||
        (IsHighSurrogate(character) && (units.AtEnd() || !IsLowSurrogate(units.Peek()))))
      return false;
    if (IsHighSurrogate(character))
      character = 0x10000 + ((character - 0xD800) << 10) + (units.Take() - 0xDC00);
    AppendUtf8(character, utf8);
  }
  return true;
}

std::size_t CharacterEncoder::Encode(char32_t character, char (&bytes)[2]) {
  const bool privateUse = character >= 0xE000 && character <= 0xF8FF;
  const std::size_t length = privateUse ? 0 : EncodeAssigned(character, bytes);
  if (length != 0)
    return length;
  bytes[0] = '?';
  return 1;
}

} // namespace tq
