// Small operations on text in the process's ANSI code page: views of strings, blanks, numbers, and
// the comma-separated ids and numbers that the terminal and its services exchange.
//
// None of the separators and blanks here is ever the second byte of a character, so bytes may be
// searched for them.
#pragma once

#include <string_view>

#include "platform/CodePage.h"
#include "platform/framework/CString.h"

namespace tq {

// The bytes of a string, valid until it is changed.
inline std::string_view ViewOf(const CString& text) {
  return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

inline CString ToCString(std::string_view text) {
  return CString(text.data(), static_cast<int>(text.size()));
}

// Whether the two are the same but for the case of single-byte letters.
inline bool EqualsNoCase(std::string_view left, std::string_view right) {
  return left == right || EqualNoCase(left.data(), left.size(), right.data(), right.size());
}

// The six blanks of ASCII.
constexpr bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// `text` without leading blanks, and without blanks on either side.
constexpr std::string_view TrimmedFront(std::string_view text) {
  while (!text.empty() && IsBlank(text.front()))
    text.remove_prefix(1);
  return text;
}
constexpr std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.back()))
    text.remove_suffix(1);
  return TrimmedFront(text);
}

// The number at the start of `text`: leading blanks are skipped, then come an optional sign and
// digits up to the first other character. 0 when there is no number; the nearest int for a number
// that is out of range.
int LeadingInt(std::string_view text);

// Calls visit(position, piece) for each comma-separated piece of `text`, positions from 0. An empty
// text has no pieces. Pieces may be empty: between two commas, before a leading one, behind a
// trailing one.
template <typename Visit> void ForEachPiece(std::string_view text, Visit visit) {
  if (text.empty())
    return;
  for (int position = 0;; ++position) {
    const std::size_t comma = text.find(',');
    visit(position, text.substr(0, comma));
    if (comma == std::string_view::npos)
      return;
    text.remove_prefix(comma + 1);
  }
}

// Calls visit(position, number) for the LeadingInt of each piece.
template <typename Visit> void ForEachNumber(std::string_view text, Visit visit) {
  ForEachPiece(text,
               [&](int position, std::string_view piece) { visit(position, LeadingInt(piece)); });
}

// Splits `text` at its first `separator`: `before` receives what stands in front of it, `text`
// keeps what stands behind it. Without a separator `before` receives all and `text` becomes empty.
// An empty `text` leaves both alone. By whole characters. When both are one object, it keeps what
// stands behind.
void CutBefore(CString& text, char separator, CString& before);

} // namespace tq
