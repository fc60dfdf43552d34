// Texts of several pieces: the ids and numbers that the terminal and its services join by ",", with
// blanks around them or not.
#pragma once

#include <string_view>

namespace tq {

// The six blanks of ASCII, none of which is ever the second byte of a character in the terminal's
// code pages.
constexpr bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// `text` without the blanks at its start, and without those on either side.
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

// Calls visit(position, piece) for each comma-separated piece of `text`, from 0. An empty text has
// no piece; two commas in a row have an empty one between them, and a comma at the end has one
// behind it. A comma is never the second byte of a character, so bytes may be searched.
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

} // namespace tq
