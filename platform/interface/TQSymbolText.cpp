#include "platform/interface/TQSymbolText.h"

#include "platform/Encoding.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

namespace tq {
namespace {

bool IsAsciiByte(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

bool IsAsciiText(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsAsciiByte);
}

std::string_view TextOrEmpty(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// Encodes the character at `at`, which is not ASCII, and moves behind it; behind one byte when that
// begins no character.
void EncodeNext(CharacterEncoder& encoder, const char*& at, const char* end, std::string& ansi) {
  if (Utf8CharLength(at, end) == 0) {
    ansi += '?';
    ++at;
    return;
  }
  char bytes[2];
  ansi.append(bytes, encoder.Encode(TakeUtf8Char(at), bytes));
}

std::string EncodeUtf8(std::string_view text) {
  std::string ansi;
  CharacterEncoder encoder(AnsiCodePage());
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    if (IsAsciiByte(*at))
      ansi += *at++;
    else
      EncodeNext(encoder, at, end, ansi);
  }
  return ansi;
}

// The text with "?" for each byte that begins no character of the code page.
std::string WholeCharacters(unsigned codePage, std::string_view text) {
  std::string whole;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const std::size_t length = IsAsciiByte(*at) ? 1 : AnsiCharLength(codePage, at, end);
    if (length == 0)
      whole += '?';
    else
      whole.append(at, length);
    at += std::max<std::size_t>(length, 1);
  }
  return whole;
}

} // namespace
} // namespace tq

CString TQFromUtf8(const char* utf8) noexcept {
  const std::string_view text = tq::TextOrEmpty(utf8);
  return tq::IsAsciiText(text) ? CString(utf8) : CString(tq::EncodeUtf8(text).c_str());
}

CString TQToUtf8(const char* ansi) noexcept {
  const std::string_view text = tq::TextOrEmpty(ansi);
  if (tq::IsAsciiText(text))
    return CString(ansi);
  std::string utf8;
  std::string whole = tq::WholeCharacters(tq::AnsiCodePage(), text);
  if (tq::DecodeText(tq::AnsiCodePage(), whole, utf8))
    return CString(utf8.c_str());
  // The system has no table of the code page.
  std::replace_if(whole.begin(), whole.end(), std::not_fn(tq::IsAsciiByte), '?');
  return CString(whole.c_str());
}
