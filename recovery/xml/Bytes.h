// Classes of bytes in XML text. A trail byte of a double-byte character is never a blank, a control
// byte, a quotation mark, an ampersand or an angle bracket, so markup is found byte by byte
// whatever the encoding.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tq {

inline bool IsBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// Of no document: what is below a space and no blank.
inline bool IsControl(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 && !IsBlank(byte);
}

inline bool IsQuote(char byte) {
  return byte == '\'' || byte == '"';
}

inline bool IsLineEnd(char byte) {
  return byte == '\n' || byte == '\r';
}

// The first place from `at` on that is no blank, or the end.
inline std::size_t BehindBlanks(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(" \t\r\n", at), text.size());
}

// The first byte from `at` on that is none of a document, or the end.
inline std::size_t FindControl(std::string_view text, std::size_t at = 0) {
  const auto* const found = std::find_if(text.begin() + at, text.end(), IsControl);
  return static_cast<std::size_t>(found - text.begin());
}

} // namespace tq
