#include "platform/framework/CListBox.h"

#include <algorithm>

#include "platform/win32/WindowRun.h"
#include "platform/win32/WindowText.h"

using tq::Silence;

namespace {

int Ask(HWND box, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  const Silence silence;
  return box == nullptr ? LB_ERR : static_cast<int>(::SendMessageW(box, message, wParam, lParam));
}

bool IsMulti(HWND box) {
  return tq::HasStyle(box, LBS_EXTENDEDSEL | LBS_MULTIPLESEL);
}

bool HasRow(HWND box, int row) {
  return row >= 0 && row < Ask(box, LB_GETCOUNT);
}

WPARAM Number(int row) {
  return static_cast<WPARAM>(row);
}

int Insert(HWND box, int row, const char* text) {
  const std::wstring wide = tq::ToWide(text);
  const int at = Ask(box, LB_INSERTSTRING, Number(row), reinterpret_cast<LPARAM>(wide.c_str()));
  return at < 0 ? -1 : at;
}

// The controls put the selection elsewhere, or lose it, when a row in front comes or goes.
class KeepSelection {
public:
  explicit KeepSelection(HWND box) : box_(box), row_(IsMulti(box) ? -1 : Ask(box, LB_GETCURSEL)) {}
  void RowCame(int row) { Put(row_ >= row ? row_ + 1 : row_); }
  void RowWent(int row) { Put(row_ == row ? -1 : row_ > row ? row_ - 1 : row_); }

private:
  void Put(int row) {
    if (!IsMulti(box_) && Ask(box_, LB_GETCURSEL) != row)
      Ask(box_, LB_SETCURSEL, Number(row));
  }
  HWND box_;
  int row_;
};

} // namespace

int CListBox::AddString(const char* text) {
  return InsertString(-1, text);
}

int CListBox::InsertString(int row, const char* text) {
  const int count = GetCount();
  if (handle_ == nullptr || row < -1 || row > count)
    return -1;
  if (row == -1 || row == count)
    return Insert(handle_, -1, text);
  KeepSelection selection(handle_);
  const int at = Insert(handle_, row, text);
  if (at != -1)
    selection.RowCame(at);
  return at;
}

bool CListBox::SetItemText(int row, const char* text) {
  if (!HasRow(handle_, row))
    return false;
  const bool selected = IsSelected(row);
  const int caret = GetCaretIndex();
  const int top = Ask(handle_, LB_GETTOPINDEX);
  const intptr_t data = GetItemData(row);
  Ask(handle_, LB_DELETESTRING, Number(row));
  const bool put = Insert(handle_, row, text) == row;
  SetItemData(row, data);
  if (IsMulti(handle_))
    Ask(handle_, LB_SETSEL, selected, row);
  else if (selected)
    Ask(handle_, LB_SETCURSEL, Number(row));
  if (IsMulti(handle_))
    SetCaretIndex(caret);
  Ask(handle_, LB_SETTOPINDEX, Number(top));
  return put;
}

bool CListBox::DeleteString(int row) {
  if (!HasRow(handle_, row))
    return false;
  KeepSelection selection(handle_);
  Ask(handle_, LB_DELETESTRING, Number(row));
  selection.RowWent(row);
  return true;
}

void CListBox::ResetContent() {
  Ask(handle_, LB_RESETCONTENT);
}

int CListBox::GetCount() const {
  const int count = Ask(handle_, LB_GETCOUNT);
  return count < 0 ? 0 : count;
}

CString CListBox::GetItemText(int row) const {
  if (!HasRow(handle_, row))
    return CString();
  std::wstring text(static_cast<size_t>(Ask(handle_, LB_GETTEXTLEN, Number(row))) + 1, L'\0');
  const int length = Ask(handle_, LB_GETTEXT, Number(row), reinterpret_cast<LPARAM>(text.data()));
  return length <= 0 ? CString() : tq::FromWide(text.data(), static_cast<size_t>(length));
}

bool CListBox::SetItemData(int row, intptr_t data) {
  return HasRow(handle_, row) && Ask(handle_, LB_SETITEMDATA, Number(row), data) != LB_ERR;
}

intptr_t CListBox::GetItemData(int row) const {
  return HasRow(handle_, row) ? ::SendMessageW(handle_, LB_GETITEMDATA, Number(row), 0) : 0;
}

int CListBox::GetCurSel() const {
  return IsMulti(handle_) ? GetNextSelected(-1) : Ask(handle_, LB_GETCURSEL);
}

bool CListBox::SetCurSel(int row) {
  if (handle_ == nullptr || (row != -1 && !HasRow(handle_, row)))
    return false;
  if (!IsMulti(handle_)) {
    Ask(handle_, LB_SETCURSEL, Number(row));
    return true;
  }
  Ask(handle_, LB_SETSEL, FALSE, -1);
  return row == -1 || (SelectRow(row) && SetCaretIndex(row));
}

bool CListBox::SelectRow(int row, bool select) {
  if (!HasRow(handle_, row))
    return false;
  if (IsMulti(handle_))
    return Ask(handle_, LB_SETSEL, select, row) != LB_ERR;
  return select ? SetCurSel(row) : !IsSelected(row) || SetCurSel(-1);
}

bool CListBox::IsSelected(int row) const {
  return HasRow(handle_, row) && Ask(handle_, LB_GETSEL, Number(row)) > 0;
}

int CListBox::GetSelCount() const {
  if (!IsMulti(handle_))
    return GetCurSel() == -1 ? 0 : 1;
  return Ask(handle_, LB_GETSELCOUNT);
}

int CListBox::GetNextSelected(int after) const {
  const int count = GetCount();
  for (int row = after < -1 ? count : after + 1; row < count; ++row) {
    if (Ask(handle_, LB_GETSEL, Number(row)) > 0)
      return row;
  }
  return -1;
}

int CListBox::GetCaretIndex() const {
  if (GetCount() == 0)
    return -1;
  const int caret = Ask(handle_, LB_GETCARETINDEX);
  return caret < 0 ? 0 : caret;
}

// A list box of one selection shows its caret on the selected row.
bool CListBox::SetCaretIndex(int row) {
  return HasRow(handle_, row) && Ask(handle_, LB_SETCARETINDEX, Number(row), FALSE) != LB_ERR;
}

bool CListBox::EnsureVisible(int row) {
  if (!HasRow(handle_, row))
    return false;
  RECT place{};
  RECT client{};
  Ask(handle_, LB_GETITEMRECT, Number(row), reinterpret_cast<LPARAM>(&place));
  ::GetClientRect(handle_, &client);
  const int shown = client.bottom / std::max<int>(1, place.bottom - place.top);
  if (place.top < 0)
    Ask(handle_, LB_SETTOPINDEX, Number(row));
  else if (place.bottom > client.bottom)
    Ask(handle_, LB_SETTOPINDEX, Number(std::max(0, row - std::max(1, shown) + 1)));
  return true;
}

void CListBox::RedrawItems() {
  if (handle_ != nullptr)
    ::InvalidateRect(handle_, nullptr, TRUE);
}
