// A place as the library's selection of a list has it: a kind and a text, which is the identifier
// of a list or the names of a group and its sub-group.
#pragma once

#include <optional>

#include "terminal/desk/Places.h"

namespace desk {

struct Selection {
  int kind = 0; // none
  CString text{};
};

// None for groups of the types that the selection does not offer.
Selection SelectionOf(CTQSymbolListMgr& manager, const Place& place);
// Nothing when there is no such list or group.
std::optional<Place> PlaceOf(CTQSymbolListMgr& manager, const Selection& selection);

} // namespace desk
