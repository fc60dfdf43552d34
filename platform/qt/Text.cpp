#include "platform/qt/Text.h"

#include <algorithm>
#include <string>

#include "platform/Encoding.h"

namespace tq::qt {

namespace {

using headless::TextCode;

unsigned CodePageOf(TextCode code) {
  return code == TextCode::Big5 ? kCodePageBig5 : kCodePageGbk;
}

bool IsAscii(std::string_view text) {
  for (const char each : text) {
    if (static_cast<unsigned char>(each) >= 0x80)
      return false;
  }
  return true;
}

// Without half characters, which the tables do not take.
std::string WholeCharacters(unsigned codePage, std::string_view text) {
  std::string whole;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    const bool ascii = static_cast<unsigned char>(*at) < 0x80;
    const std::size_t length = ascii ? 1 : AnsiCharLength(codePage, at, end);
    if (length == 0)
      whole += '?';
    else
      whole.append(at, length);
    at += length == 0 ? 1 : length;
  }
  return whole;
}

constexpr char32_t kFirstStandIn = 0xF0000;
constexpr char32_t kLastStandIn = 0xFFFFF;

bool IsStandIn(char32_t character) {
  return character >= kFirstStandIn && character <= kLastStandIn;
}

// For one character of one or two bytes.
char32_t StandInFor(std::string_view bytes) {
  char32_t value = 0;
  for (const char each : bytes)
    value = value << 8 | static_cast<unsigned char>(each);
  return kFirstStandIn + value;
}

void AppendBytes(char32_t standIn, std::string& bytes) {
  const char32_t value = standIn - kFirstStandIn;
  if (value > 0xFF)
    bytes += static_cast<char>(value >> 8);
  bytes += static_cast<char>(value & 0xFF);
}

CString Encode(unsigned codePage, const QString& text) {
  CharacterEncoder encoder(codePage);
  std::string bytes;
  for (const char32_t character : text.toStdU32String()) {
    char encoded[2];
    bytes.append(encoded, encoder.Encode(character, encoded));
  }
  return CString(bytes.c_str());
}

} // namespace

QString ToQt(TextCode code, const CString& text) {
  const std::string_view bytes(text.GetString(), static_cast<std::size_t>(text.GetLength()));
  const auto size = static_cast<qsizetype>(bytes.size());
  if (IsAscii(bytes))
    return QString::fromLatin1(bytes.data(), size);
  if (code == TextCode::Utf8)
    return QString::fromUtf8(bytes.data(), size);
  std::string utf8;
  const unsigned codePage = CodePageOf(code);
  if (!DecodeText(codePage, WholeCharacters(codePage, bytes), utf8))
    return QString::fromLatin1(bytes.data(), size);
  return QString::fromStdString(utf8);
}

CString FromQt(TextCode code, const QString& text) {
  const std::string utf8 = text.toStdString();
  return code == TextCode::Utf8 || IsAscii(utf8) ? CString(utf8.c_str())
                                                 : Encode(CodePageOf(code), text);
}

QString ToEditable(TextCode code, const CString& text) {
  QString plain = ToQt(code, text);
  if (code == TextCode::Utf8 || FromQt(code, plain) == text)
    return plain;
  QString editable;
  const char* at = text.GetString();
  const char* const end = at + text.GetLength();
  while (at != end) {
    const std::size_t whole =
        static_cast<unsigned char>(*at) < 0x80 ? 1 : AnsiCharLength(CodePageOf(code), at, end);
    const auto length = static_cast<int>(whole == 0 ? 1 : whole);
    const CString piece(at, length);
    const QString one = ToQt(code, piece);
    if (FromQt(code, one) == piece)
      editable += one;
    else
      editable += QChar::fromUcs4(StandInFor({at, static_cast<std::size_t>(length)}));
    at += length;
  }
  return editable;
}

CString FromEditable(TextCode code, const QString& text) {
  if (code == TextCode::Utf8)
    return FromQt(code, text);
  CharacterEncoder encoder(CodePageOf(code));
  std::string bytes;
  for (const char32_t character : text.toStdU32String()) {
    char encoded[2];
    if (IsStandIn(character))
      AppendBytes(character, bytes);
    else
      bytes.append(encoded, encoder.Encode(character, encoded));
  }
  return CString(bytes.c_str());
}

QString WithoutStandIns(const QString& text) {
  std::u32string characters = text.toStdU32String();
  std::replace_if(characters.begin(), characters.end(), IsStandIn, U'?');
  return QString::fromStdU32String(characters);
}

qsizetype CutToBytes(TextCode code, const QString& text, int bytes) {
  qsizetype at = 0;
  while (at < text.size()) {
    const qsizetype length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    bytes -= FromEditable(code, text.mid(at, length)).GetLength();
    if (bytes < 0)
      break;
    at += length;
  }
  return at;
}

} // namespace tq::qt
