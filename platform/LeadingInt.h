// The number at the start of a text, as the services and the tables read it everywhere.
#pragma once

#include <string_view>

#include "platform/Text.h"

namespace tq {

// Leading blanks are passed over, then an optional sign and digits up to the first other character.
// 0 when there is no number. A number that an int cannot hold gives the nearest one that it can.
int LeadingInt(std::string_view text);

// Calls visit(position, number) for each piece of `text`, as ForEachPiece does; an empty one reads
// as 0.
template <typename Visit> void ForEachNumber(std::string_view text, Visit visit) {
  ForEachPiece(text,
               [&](int position, std::string_view piece) { visit(position, LeadingInt(piece)); });
}

} // namespace tq
