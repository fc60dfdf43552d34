#include "platform/Encoding.h"

#include <windows.h>

namespace tq {

unsigned AnsiCodePage() {
  return ::GetACP();
}

bool DecodeText(unsigned codePage, std::string_view text, std::string& utf8) {
  utf8.clear();
  if (text.empty())
    return true;
  const int length = static_cast<int>(text.size());
  const int wideLength = ::MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0);
  if (wideLength <= 0)
    return false;
  std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
  ::MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), wideLength);
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
  utf8.resize(static_cast<std::size_t>(size));
  ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideLength, utf8.data(), size, nullptr, nullptr);
  return size > 0;
}

CharacterEncoder::CharacterEncoder(unsigned codePage) : codePage_(codePage), table_(nullptr) {}

CharacterEncoder::~CharacterEncoder() = default;

std::size_t CharacterEncoder::EncodeAssigned(char32_t character, char (&bytes)[2]) {
  constexpr char32_t firstOfTwo = 0x10000; // two UTF-16 units; no ANSI code page has such a one
  const wchar_t wide = static_cast<wchar_t>(character);
  BOOL lacking = FALSE;
  int length = 0;
  if (character < firstOfTwo)
    length = ::WideCharToMultiByte(codePage_, WC_NO_BEST_FIT_CHARS, &wide, 1, bytes, sizeof bytes,
                                   "?", &lacking);
  return length > 0 && !lacking ? static_cast<std::size_t>(length) : 0;
}

} // namespace tq
