// The number at the start of a text, as the services and the tables read it everywhere.
#pragma once

#include <string_view>

namespace tq {

// Leading blanks are passed over, then an optional sign and digits up to the first other character.
// 0 when there is no number. A number that an int cannot hold gives the nearest one that it can.
int LeadingInt(std::string_view text);

// Calls visit(position, number) for each comma-separated piece of `text`, from 0. An empty text has
// no piece; an empty piece reads as 0. A comma is never the second byte of a double-byte character,
// so bytes may be searched.
template <typename Visit> void ForEachNumber(std::string_view text, Visit visit) {
  int position = 0;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    visit(position++, LeadingInt(text.substr(0, comma)));
    if (comma == std::string_view::npos)
      return;
    text.remove_prefix(comma + 1);
    if (text.empty())
      visit(position, 0);
  }
}

} // namespace tq
