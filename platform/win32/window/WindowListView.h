// The caret row and the anchor of list views. Internal.
#pragma once

#include <windows.h>

namespace tq {

// Sends a message to a list view with its notifications muted.
LRESULT AskView(HWND view, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

bool IsVirtualView(HWND view);
int RowsInSightOfView(HWND view); // whole ones
int CaretOfView(HWND view);       // -1 in an empty one
void PutCaretOfView(HWND view, int row);
int AnchorOfView(HWND view); // the row from which Shift selects
void PutAnchorOfView(HWND view, int row);
// Row -1 is every row.
void SetRowState(HWND view, int row, UINT state, UINT mask);
void SelectRangeOfView(HWND view, int first, int last); // and no others

} // namespace tq
