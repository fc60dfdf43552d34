// Reads the remains of one list.
#pragma once

#include <string_view>

#include "recovery/RawList.h"
#include "recovery/damage/DamagedPieces.h"

namespace tq {

// Replaces `list` by what can be read of it. A value that holds what looks like markup goes up to
// the last quotation mark that is followed by what follows the value in a list: the next attribute,
// or the element's end.
void ReadDamagedList(std::string_view text, Extent remains, RawList& list);

} // namespace tq
