// Where controls and rows in memory are, and which of them the mouse reaches. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// How many whole rows a list of that place shows.
int RowsInSight(ControlKind kind, const Place& place);
// Whether a text can be read whole in a row of the list.
bool FitsInRow(const Control& list, const CString& text);
// The place of a row that is in sight.
Place PlaceOfRow(const Control& list, int row);

// Whether the mouse reaches the control in its middle: whether nothing lies in front there.
bool IsReached(const Control& control);
bool IsRowReached(const Control& list, int row);

} // namespace tq::headless
