// The geometry of controls and rows in memory, and which of them the mouse reaches. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// How many whole rows a list of that place shows.
int RowsInSight(ControlKind kind, const Place& place);
// Whether a text fits into a row of the list.
bool FitsInRow(const Control& list, const CString& text);
// The rectangle of a row that is in sight.
Place PlaceOfRow(const Control& list, int row);

// Whether the mouse reaches the control at its centre, where nothing lies in front of it.
bool IsReached(const Control& control);
bool IsRowReached(const Control& list, int row);

} // namespace tq::headless
