#include "platform/framework/window/CListBox.h"

#include <algorithm>

#include "platform/win32/WindowsObjects.h"
#include "platform/win32/window/WindowListBox.h"
#include "platform/win32/window/WindowRun.h"
#include "platform/win32/window/WindowText.h"
#include "platform/win32/window/WindowTips.h"

using tq::IsMultiBox;
using tq::KeepPlace;

namespace {

bool HasRow(HWND box, int row) {
  return row >= 0 && row < tq::AskBox(box, LB_GETCOUNT);
}

int Insert(HWND box, int row, const char* text) {
  const std::wstring wide = tq::ToWide(text);
  const int at =
      tq::AskBox(box, LB_INSERTSTRING, tq::IndexParam(row), reinterpret_cast<LPARAM>(wide.c_str()));
  return at < 0 ? -1 : at;
}

// A window's device context with the window's font selected.
class WindowContext {
public:
  explicit WindowContext(HWND window) : window_(window), context_(::GetDC(window)) {
    if (context_ == nullptr)
      return;
    tq::NoteOpened(tq::SystemObject::DeviceContext);
    before_ = ::SelectObject(context_,
                             reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0)));
  }
  ~WindowContext() {
    if (context_ == nullptr)
      return;
    ::SelectObject(context_, before_);
    if (::ReleaseDC(window_, context_) != 0)
      tq::NoteClosed(tq::SystemObject::DeviceContext);
  }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  HDC Get() const { return context_; }

private:
  const HWND window_;
  const HDC context_;
  HGDIOBJ before_ = nullptr;
};

bool FitsInRow(HWND box, const std::wstring& text) {
  const WindowContext context(box);
  SIZE size{};
  ::GetTextExtentPoint32W(context.Get(), text.c_str(), static_cast<int>(text.size()), &size);
  RECT client{};
  ::GetClientRect(box, &client);
  return size.cx <= client.right;
}

void SelectOneOfSeveral(HWND box, int row) {
  tq::AskBox(box, LB_SETSEL, TRUE, row);
  tq::PutAnchor(box, row);
  tq::AskBox(box, LB_SETCARETINDEX, tq::IndexParam(row), FALSE);
}

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
  KeepPlace place(handle_);
  const int at = Insert(handle_, row, text);
  if (at != -1)
    place.RowCame(at);
  place.Restore();
  return at;
}

// List boxes cannot change the text of a row, so it is deleted and inserted again.
bool CListBox::SetItemText(int row, const char* text) {
  if (!HasRow(handle_, row))
    return false;
  const KeepPlace place(handle_);
  const bool selected = IsSelected(row);
  const intptr_t data = GetItemData(row);
  tq::AskBox(handle_, LB_DELETESTRING, tq::IndexParam(row));
  const bool put = Insert(handle_, row, text) == row;
  SetItemData(row, data);
  if (IsMultiBox(handle_) && selected)
    tq::AskBox(handle_, LB_SETSEL, TRUE, row);
  place.Restore();
  return put;
}

bool CListBox::DeleteString(int row) {
  if (!HasRow(handle_, row))
    return false;
  KeepPlace place(handle_);
  tq::AskBox(handle_, LB_DELETESTRING, tq::IndexParam(row));
  place.RowWent(row);
  place.Restore();
  return true;
}

void CListBox::ResetContent() {
  tq::AskBox(handle_, LB_RESETCONTENT);
}

int CListBox::GetCount() const {
  const int count = tq::AskBox(handle_, LB_GETCOUNT);
  return count < 0 ? 0 : count;
}

CString CListBox::GetItemText(int row) const {
  if (!HasRow(handle_, row))
    return CString();
  std::wstring text(
      static_cast<size_t>(tq::AskBox(handle_, LB_GETTEXTLEN, tq::IndexParam(row))) + 1, L'\0');
  const int length =
      tq::AskBox(handle_, LB_GETTEXT, tq::IndexParam(row), reinterpret_cast<LPARAM>(text.data()));
  return length <= 0 ? CString() : tq::FromWide(text.data(), static_cast<size_t>(length));
}

bool CListBox::SetItemData(int row, intptr_t data) {
  return HasRow(handle_, row) &&
         tq::AskBox(handle_, LB_SETITEMDATA, tq::IndexParam(row), data) != LB_ERR;
}

intptr_t CListBox::GetItemData(int row) const {
  return HasRow(handle_, row) ? ::SendMessageW(handle_, LB_GETITEMDATA, tq::IndexParam(row), 0) : 0;
}

int CListBox::GetCurSel() const {
  return IsMultiBox(handle_) ? GetNextSelected(-1) : tq::AskBox(handle_, LB_GETCURSEL);
}

bool CListBox::SetCurSel(int row) {
  if (handle_ == nullptr || (row != -1 && !HasRow(handle_, row)))
    return false;
  const bool multi = IsMultiBox(handle_);
  if (row != -1 && !multi) {
    tq::AskBox(handle_, LB_SETCURSEL, tq::IndexParam(row));
    return EnsureVisible(row);
  }
  KeepPlace place(handle_);
  if (multi)
    tq::AskBox(handle_, LB_SETSEL, FALSE, -1);
  place.SelectNone();
  place.Restore();
  if (row != -1)
    SelectOneOfSeveral(handle_, row);
  return row == -1 || EnsureVisible(row);
}

bool CListBox::SelectRow(int row, bool select) {
  if (!HasRow(handle_, row))
    return false;
  if (!IsMultiBox(handle_))
    return select ? SetCurSel(row) : !IsSelected(row) || SetCurSel(-1);
  const KeepPlace place(handle_);
  const bool done = tq::AskBox(handle_, LB_SETSEL, select, row) != LB_ERR;
  place.Restore();
  return done;
}

bool CListBox::SelectRange(int first, int last, bool select) {
  if (!IsMultiBox(handle_) || !HasRow(handle_, first) || !HasRow(handle_, last))
    return false;
  if (first == last)
    return SelectRow(first, select);
  const KeepPlace place(handle_);
  const auto [low, high] = std::minmax(first, last);
  // For the control a range from a greater to a smaller row means deselecting.
  tq::AskBox(handle_, LB_SELITEMRANGEEX, tq::IndexParam(select ? low : high), select ? high : low);
  place.Restore();
  return true;
}

bool CListBox::IsSelected(int row) const {
  return HasRow(handle_, row) && tq::AskBox(handle_, LB_GETSEL, tq::IndexParam(row)) > 0;
}

int CListBox::GetSelCount() const {
  if (!IsMultiBox(handle_))
    return GetCurSel() == -1 ? 0 : 1;
  return tq::AskBox(handle_, LB_GETSELCOUNT);
}

int CListBox::GetNextSelected(int after) const {
  const int count = GetCount();
  for (int row = after < -1 ? count : after + 1; row < count; ++row) {
    if (tq::AskBox(handle_, LB_GETSEL, tq::IndexParam(row)) > 0)
      return row;
  }
  return -1;
}

int CListBox::GetCaretIndex() const {
  if (GetCount() == 0)
    return -1;
  const int caret = tq::AskBox(handle_, LB_GETCARETINDEX);
  return caret < 0 ? 0 : caret;
}

bool CListBox::SetCaretIndex(int row) {
  const bool isFree = IsMultiBox(handle_) || GetCurSel() == -1;
  return HasRow(handle_, row) && isFree &&
         tq::AskBox(handle_, LB_SETCARETINDEX, tq::IndexParam(row), FALSE) != LB_ERR &&
         EnsureVisible(row);
}

void CListBox::SetRowTips(bool on) {
  tq::Run* const run = tq::FindRun(::GetParent(handle_));
  if (run != nullptr && handle_ != nullptr && tq::HasRowTips(handle_) != on)
    tq::SetRowTips(*run, handle_, on);
}

CString CListBox::GetRowTip(int row) const {
  if (handle_ == nullptr || !tq::HasRowTips(handle_))
    return CString();
  const CString text = GetItemText(row);
  return FitsInRow(handle_, tq::ToWide(text)) ? CString() : text;
}

bool CListBox::EnsureVisible(int row) {
  if (!HasRow(handle_, row))
    return false;
  RECT place{};
  RECT client{};
  tq::AskBox(handle_, LB_GETITEMRECT, tq::IndexParam(row), reinterpret_cast<LPARAM>(&place));
  ::GetClientRect(handle_, &client);
  const int shown = client.bottom / std::max<int>(1, place.bottom - place.top);
  if (place.top < 0)
    tq::AskBox(handle_, LB_SETTOPINDEX, tq::IndexParam(row));
  else if (place.bottom > client.bottom)
    tq::AskBox(handle_, LB_SETTOPINDEX, tq::IndexParam(std::max(0, row - std::max(1, shown) + 1)));
  return true;
}

void CListBox::RedrawItems() {
  if (handle_ != nullptr)
    ::InvalidateRect(handle_, nullptr, TRUE);
}
