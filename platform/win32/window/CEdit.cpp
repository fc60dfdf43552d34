#include "platform/framework/window/CEdit.h"

#include <algorithm>

#include "platform/win32/window/WindowEditLimit.h"
#include "platform/win32/window/WindowRun.h"

using tq::Silence;

void CEdit::SetLimitText(int bytes) {
  if (handle_ != nullptr)
    tq::SetEditLimit(handle_, std::max(0, bytes));
}

int CEdit::GetLimitText() const {
  return handle_ == nullptr ? 0 : tq::GetEditLimit(handle_);
}

void CEdit::SelectAll() {
  const Silence silence;
  ::SendMessageW(handle_, EM_SETSEL, 0, -1);
}

bool CEdit::IsAllSelected() const {
  DWORD start = 0;
  DWORD end = 0;
  ::SendMessageW(handle_, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
  const auto length = static_cast<DWORD>(::GetWindowTextLengthW(handle_));
  return length != 0 && start == 0 && end == length;
}

void CEdit::SetReadOnly(bool readOnly) {
  ::SendMessageW(handle_, EM_SETREADONLY, readOnly ? TRUE : FALSE, 0);
}

bool CEdit::IsReadOnly() const {
  return tq::HasStyle(handle_, ES_READONLY);
}

bool CEdit::PlaceOverRow(const CListBox& list, int row) {
  const HWND box = list.GetSafeHwnd();
  const HWND dialog = ::GetParent(handle_);
  if (handle_ == nullptr || box == nullptr || ::GetParent(box) != dialog ||
      !CListBox(list).EnsureVisible(row))
    return false;
  const Silence silence;
  RECT place{};
  ::SendMessageW(box, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  ::MapWindowPoints(box, dialog, reinterpret_cast<POINT*>(&place), 2);
  // A row is as high as its text, so the edit's borders are added around it.
  ::AdjustWindowRectEx(&place, static_cast<DWORD>(::GetWindowLongPtrW(handle_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(::GetWindowLongPtrW(handle_, GWL_EXSTYLE)));
  ::SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  return true;
}
