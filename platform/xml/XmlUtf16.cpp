#include "platform/xml/XmlUtf16.h"

#include "platform/xml/XmlCharacters.h"

namespace tq {
namespace {

constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";
constexpr std::string_view kUtf32Mark{"\xFF\xFE\0\0", 4};

class Units {
public:
  // `text` is behind the mark and of even length.
  Units(std::string_view text, bool little) : text_(text), little_(little) {}

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

bool IsHigh(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLow(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

void Append(char32_t character, std::string& utf8) {
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

} // namespace

bool IsUtf16(std::string_view file) {
  return (file.starts_with(kLittleMark) && !file.starts_with(kUtf32Mark)) ||
         file.starts_with(kBigMark);
}

bool DecodeUtf16(std::string_view file, std::string& utf8) {
  utf8.clear();
  if (file.size() % 2 != 0)
    return false;
  Units units(file.substr(kLittleMark.size()), file.starts_with(kLittleMark));
  while (!units.AtEnd()) {
    char32_t character = units.Take();
    if (IsLow(character) || (IsHigh(character) && (units.AtEnd() || !IsLow(units.Peek()))))
      return false;
    if (IsHigh(character))
      character = 0x10000 + ((character - 0xD800) << 10) + (units.Take() - 0xDC00);
    Append(character, utf8);
  }
  return true;
}

} // namespace tq
