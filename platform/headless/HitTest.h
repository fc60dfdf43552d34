// Where controls and rows in memory are, and which of them the mouse reaches. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// How many whole rows a list of that place shows.
int RowsInSight(ControlKind kind, const Place& place);
// The place of a row that is in sight.
Place PlaceOfRow(const Control& list, int row);

// Whether the mouse reaches the control in its middle: whether nothing lies in front there.
bool IsReached(const Control& control);
bool IsRowReached(const Control& list, int row);

} // namespace tq::headless
