#include "platform/win32/window/WindowListView.h"

#include <algorithm>

#include "platform/win32/window/WindowRun.h"

namespace tq {

LRESULT AskView(HWND view, UINT message, WPARAM wParam, LPARAM lParam) {
  const Silence silence;
  return ::SendMessageW(view, message, wParam, lParam);
}

bool IsVirtualView(HWND view) {
  return view != nullptr && HasStyle(view, LVS_OWNERDATA);
}

int RowsInSightOfView(HWND view) {
  return static_cast<int>(AskView(view, LVM_GETCOUNTPERPAGE));
}

int CaretOfView(HWND view) {
  if (AskView(view, LVM_GETITEMCOUNT) == 0)
    return -1;
  const auto none = static_cast<WPARAM>(-1);
  return std::max(0, static_cast<int>(AskView(view, LVM_GETNEXTITEM, none, LVNI_FOCUSED)));
}

void PutCaretOfView(HWND view, int row) {
  SetRowState(view, row, LVIS_FOCUSED, LVIS_FOCUSED);
}

int AnchorOfView(HWND view) {
  return std::max(0, static_cast<int>(AskView(view, LVM_GETSELECTIONMARK)));
}

void PutAnchorOfView(HWND view, int row) {
  AskView(view, LVM_SETSELECTIONMARK, 0, row);
}

void SetRowState(HWND view, int row, UINT state, UINT mask) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  AskView(view, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void SelectRangeOfView(HWND view, int first, int last) {
  if (first == 0 && last == static_cast<int>(AskView(view, LVM_GETITEMCOUNT)) - 1)
    return SetRowState(view, -1, LVIS_SELECTED, LVIS_SELECTED);
  SetRowState(view, -1, 0, LVIS_SELECTED);
  for (int row = first; row <= last; ++row)
    SetRowState(view, row, LVIS_SELECTED, LVIS_SELECTED);
}

} // namespace tq
