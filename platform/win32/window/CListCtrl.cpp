#include "platform/framework/window/CListCtrl.h"

#include <algorithm>

#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/window/WindowListView.h"
#include "platform/win32/window/WindowRun.h"
#include "platform/win32/window/WindowText.h"

using tq::AskView;

namespace {

constexpr int kLongText = 256; // longer texts of cells are read with a larger buffer
constexpr auto kSystemHoverTime = static_cast<DWORD>(HOVER_DEFAULT);

template <class RECORD> LPARAM Address(RECORD& record) {
  return reinterpret_cast<LPARAM>(&record);
}

bool ViewHasRow(HWND view, int row) {
  return row >= 0 && row < static_cast<int>(AskView(view, LVM_GETITEMCOUNT));
}

// The table's width that the columns leave, less that of the scroll bar that many rows bring.
int RestOfWidth(HWND view, int columns) {
  RECT client{};
  ::GetClientRect(view, &client);
  int rest = client.right - ::GetSystemMetrics(SM_CXVSCROLL);
  for (int column = 0; column < columns; ++column)
    rest -= static_cast<int>(AskView(view, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
  return std::max(0, rest);
}

int Pixels(HWND view, int dialogUnits) {
  RECT place{0, 0, dialogUnits, 0};
  ::MapDialogRect(::GetParent(view), &place);
  return place.right;
}

void StartAtFirstRow(HWND view) {
  tq::PutCaretOfView(view, 0);
  tq::PutAnchorOfView(view, 0);
}

// The number of a row after another one of `count` was deleted; for the deleted row itself, that of
// the row that takes its number.
int AfterDelete(int row, int deleted, int count) {
  return row > deleted || row == count - 1 ? row - 1 : row;
}

CString AskedText(HWND view, int row, int column) {
  const tq::Run* const run = tq::FindRun(::GetParent(view));
  return run == nullptr
             ? CString()
             : tq::DialogAccess::CellText(*run->dialog, ::GetDlgCtrlID(view), row, column);
}

} // namespace

void CListCtrl::SetStyles(unsigned styles) {
  DWORD bits = (styles & FullRowSelect) != 0 ? LVS_EX_FULLROWSELECT : 0;
  bits |= (styles & GridLines) != 0 ? LVS_EX_GRIDLINES : 0;
  bits |= (styles & HoverSelect) != 0 ? LVS_EX_TRACKSELECT : 0;
  AskView(handle_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(bits));
}

unsigned CListCtrl::GetStyles() const {
  const LRESULT bits = AskView(handle_, LVM_GETEXTENDEDLISTVIEWSTYLE);
  unsigned styles = (bits & LVS_EX_FULLROWSELECT) != 0 ? FullRowSelect : 0U;
  styles |= (bits & LVS_EX_GRIDLINES) != 0 ? GridLines : 0U;
  return styles | ((bits & LVS_EX_TRACKSELECT) != 0 ? HoverSelect : 0U);
}

void CListCtrl::SetHoverTime(unsigned milliseconds) {
  const DWORD time = milliseconds == 0 ? kSystemHoverTime : milliseconds;
  AskView(handle_, LVM_SETHOVERTIME, 0, static_cast<LPARAM>(time));
}

unsigned CListCtrl::GetHoverTime() const {
  const auto time = static_cast<DWORD>(AskView(handle_, LVM_GETHOVERTIME));
  return time == kSystemHoverTime ? 0 : static_cast<unsigned>(time);
}

int CListCtrl::AddColumn(const char* title, int width) {
  if (handle_ == nullptr)
    return -1;
  std::wstring wide = tq::ToWide(title);
  const int number = GetColumnCount();
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
  column.pszText = wide.data();
  column.cx = width > 0 ? Pixels(handle_, width) : RestOfWidth(handle_, number);
  column.iSubItem = number;
  return static_cast<int>(
      AskView(handle_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(number), Address(column)));
}

int CListCtrl::GetColumnCount() const {
  const auto header = reinterpret_cast<HWND>(AskView(handle_, LVM_GETHEADER));
  return header == nullptr ? 0 : static_cast<int>(AskView(header, HDM_GETITEMCOUNT));
}

CString CListCtrl::GetColumnTitle(int column) const {
  wchar_t text[kLongText] = {};
  LVCOLUMNW record{};
  record.mask = LVCF_TEXT;
  record.pszText = text;
  record.cchTextMax = kLongText;
  const bool is =
      column >= 0 && column < GetColumnCount() &&
      AskView(handle_, LVM_GETCOLUMNW, static_cast<WPARAM>(column), Address(record)) != 0;
  return is ? tq::FromWide(record.pszText, static_cast<size_t>(::lstrlenW(record.pszText)))
            : CString();
}

int CListCtrl::AddRow(const char* text) {
  return InsertRow(-1, text);
}

int CListCtrl::InsertRow(int row, const char* text) {
  const int count = GetRowCount();
  if (GetColumnCount() == 0 || row < -1 || row > count || tq::IsVirtualView(handle_))
    return -1;
  std::wstring wide = tq::ToWide(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row == -1 ? count : row;
  item.pszText = wide.data();
  const auto at = static_cast<int>(AskView(handle_, LVM_INSERTITEMW, 0, Address(item)));
  if (count == 0)
    StartAtFirstRow(handle_);
  return at;
}

bool CListCtrl::DeleteRow(int row) {
  if (!ViewHasRow(handle_, row) || tq::IsVirtualView(handle_))
    return false;
  const int caret = AfterDelete(tq::CaretOfView(handle_), row, GetRowCount());
  const int anchor = AfterDelete(tq::AnchorOfView(handle_), row, GetRowCount());
  if (AskView(handle_, LVM_DELETEITEM, static_cast<WPARAM>(row)) == 0)
    return false;
  if (caret >= 0)
    tq::PutCaretOfView(handle_, caret);
  tq::PutAnchorOfView(handle_, anchor);
  return true;
}

void CListCtrl::DeleteAllRows() {
  AskView(handle_, LVM_DELETEALLITEMS);
}

bool CListCtrl::SetVirtualRows(int count) {
  if (!tq::IsVirtualView(handle_) || count < 0 || GetColumnCount() == 0)
    return false;
  tq::SetRowState(handle_, -1, 0, LVIS_SELECTED);
  AskView(handle_, LVM_SETITEMCOUNT, static_cast<WPARAM>(count));
  if (count > 0) {
    StartAtFirstRow(handle_);
    EnsureVisible(0);
  }
  return true;
}

int CListCtrl::GetRowCount() const {
  return static_cast<int>(AskView(handle_, LVM_GETITEMCOUNT));
}

bool CListCtrl::SetCellText(int row, int column, const char* text) {
  if (!ViewHasRow(handle_, row) || column < 0 || column >= GetColumnCount() ||
      tq::IsVirtualView(handle_))
    return false;
  std::wstring wide = tq::ToWide(text);
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = wide.data();
  return AskView(handle_, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), Address(item)) != 0;
}

CString CListCtrl::GetCellText(int row, int column) const {
  if (!ViewHasRow(handle_, row) || column < 0 || column >= GetColumnCount())
    return CString();
  if (tq::IsVirtualView(handle_))
    return AskedText(handle_, row, column);
  std::wstring text(kLongText, L'\0');
  for (;;) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    const auto length = static_cast<size_t>(
        AskView(handle_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), Address(item)));
    if (length + 1 < text.size())
      return tq::FromWide(text.data(), length);
    text.resize(text.size() * 2);
  }
}

bool CListCtrl::SetItemData(int row, intptr_t data) {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  item.lParam = data;
  return ViewHasRow(handle_, row) && !tq::IsVirtualView(handle_) &&
         AskView(handle_, LVM_SETITEMW, 0, Address(item)) != 0;
}

intptr_t CListCtrl::GetItemData(int row) const {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  const bool is = ViewHasRow(handle_, row) && !tq::IsVirtualView(handle_) &&
                  AskView(handle_, LVM_GETITEMW, 0, Address(item)) != 0;
  return is ? item.lParam : 0;
}

int CListCtrl::GetCurSel() const {
  return GetNextSelected(-1);
}

bool CListCtrl::SetCurSel(int row) {
  if (handle_ == nullptr || (row != -1 && !ViewHasRow(handle_, row)))
    return false;
  tq::SetRowState(handle_, -1, 0, LVIS_SELECTED);
  if (row == -1)
    return true;
  tq::SetRowState(handle_, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  tq::PutAnchorOfView(handle_, row);
  return EnsureVisible(row);
}

bool CListCtrl::SelectRow(int row, bool select) {
  if (!ViewHasRow(handle_, row))
    return false;
  const int anchor = tq::AnchorOfView(handle_);
  tq::SetRowState(handle_, row, select ? LVIS_SELECTED : 0, LVIS_SELECTED);
  tq::PutAnchorOfView(handle_, anchor);
  return true;
}

bool CListCtrl::IsSelected(int row) const {
  return ViewHasRow(handle_, row) &&
         AskView(handle_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
}

int CListCtrl::GetSelectedCount() const {
  return static_cast<int>(AskView(handle_, LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetNextSelected(int after) const {
  if (handle_ == nullptr || after < -1)
    return -1;
  return static_cast<int>(
      AskView(handle_, LVM_GETNEXTITEM, static_cast<WPARAM>(after), LVNI_SELECTED));
}

bool CListCtrl::EnsureVisible(int row) {
  if (!ViewHasRow(handle_, row))
    return false;
  AskView(handle_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  return true;
}
