#include "platform/framework/CListCtrl.h"

#include <algorithm>

#include "platform/win32/WindowRun.h"
#include "platform/win32/WindowText.h"

using tq::Silence;

namespace {

constexpr int kLongText = 256; // of a cell; longer ones are asked for again

LRESULT Ask(HWND view, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  const Silence silence;
  return ::SendMessageW(view, message, wParam, lParam);
}

template <class RECORD> LPARAM Address(RECORD& record) {
  return reinterpret_cast<LPARAM>(&record);
}

bool HasRow(HWND view, int row) {
  return row >= 0 && row < static_cast<int>(Ask(view, LVM_GETITEMCOUNT));
}

// Row -1 is every row.
void SetState(HWND view, int row, UINT state, UINT mask) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  Ask(view, LVM_SETITEMSTATE, static_cast<WPARAM>(row), Address(item));
}

// What the columns leave of the table's width, less the scroll bar's that comes with many rows.
int RestOfWidth(HWND view, int columns) {
  RECT client{};
  ::GetClientRect(view, &client);
  int rest = client.right - ::GetSystemMetrics(SM_CXVSCROLL);
  for (int column = 0; column < columns; ++column)
    rest -= static_cast<int>(Ask(view, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
  return std::max(0, rest);
}

int Pixels(HWND view, int dialogUnits) {
  RECT place{0, 0, dialogUnits, 0};
  ::MapDialogRect(::GetParent(view), &place);
  return place.right;
}

} // namespace

void CListCtrl::SetStyles(unsigned styles) {
  DWORD bits = (styles & FullRowSelect) != 0 ? LVS_EX_FULLROWSELECT : 0;
  bits |= (styles & GridLines) != 0 ? LVS_EX_GRIDLINES : 0;
  bits |= (styles & HoverSelect) != 0 ? LVS_EX_TRACKSELECT : 0;
  Ask(handle_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(bits));
}

unsigned CListCtrl::GetStyles() const {
  const LRESULT bits = Ask(handle_, LVM_GETEXTENDEDLISTVIEWSTYLE);
  unsigned styles = (bits & LVS_EX_FULLROWSELECT) != 0 ? FullRowSelect : 0U;
  styles |= (bits & LVS_EX_GRIDLINES) != 0 ? GridLines : 0U;
  return styles | ((bits & LVS_EX_TRACKSELECT) != 0 ? HoverSelect : 0U);
}

void CListCtrl::SetHoverTime(unsigned milliseconds) {
  Ask(handle_, LVM_SETHOVERTIME, 0, static_cast<LPARAM>(milliseconds));
}

unsigned CListCtrl::GetHoverTime() const {
  return static_cast<unsigned>(Ask(handle_, LVM_GETHOVERTIME));
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
      Ask(handle_, LVM_INSERTCOLUMNW, static_cast<WPARAM>(number), Address(column)));
}

int CListCtrl::GetColumnCount() const {
  const auto header = reinterpret_cast<HWND>(Ask(handle_, LVM_GETHEADER));
  return header == nullptr ? 0 : static_cast<int>(Ask(header, HDM_GETITEMCOUNT));
}

CString CListCtrl::GetColumnTitle(int column) const {
  wchar_t text[kLongText] = {};
  LVCOLUMNW record{};
  record.mask = LVCF_TEXT;
  record.pszText = text;
  record.cchTextMax = kLongText;
  const bool is = column >= 0 && column < GetColumnCount() &&
                  Ask(handle_, LVM_GETCOLUMNW, static_cast<WPARAM>(column), Address(record)) != 0;
  return is ? tq::FromWide(record.pszText, static_cast<size_t>(::lstrlenW(record.pszText)))
            : CString();
}

int CListCtrl::AddRow(const char* text) {
  return InsertRow(-1, text);
}

int CListCtrl::InsertRow(int row, const char* text) {
  const int count = GetRowCount();
  if (GetColumnCount() == 0 || row < -1 || row > count)
    return -1;
  std::wstring wide = tq::ToWide(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row == -1 ? count : row;
  item.pszText = wide.data();
  return static_cast<int>(Ask(handle_, LVM_INSERTITEMW, 0, Address(item)));
}

bool CListCtrl::DeleteRow(int row) {
  return HasRow(handle_, row) && Ask(handle_, LVM_DELETEITEM, static_cast<WPARAM>(row)) != 0;
}

void CListCtrl::DeleteAllRows() {
  Ask(handle_, LVM_DELETEALLITEMS);
}

int CListCtrl::GetRowCount() const {
  return static_cast<int>(Ask(handle_, LVM_GETITEMCOUNT));
}

bool CListCtrl::SetCellText(int row, int column, const char* text) {
  if (!HasRow(handle_, row) || column < 0 || column >= GetColumnCount())
    return false;
  std::wstring wide = tq::ToWide(text);
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = wide.data();
  return Ask(handle_, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), Address(item)) != 0;
}

CString CListCtrl::GetCellText(int row, int column) const {
  if (!HasRow(handle_, row) || column < 0 || column >= GetColumnCount())
    return CString();
  std::wstring text(kLongText, L'\0');
  for (;;) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    const auto length = static_cast<size_t>(
        Ask(handle_, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), Address(item)));
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
  return HasRow(handle_, row) && Ask(handle_, LVM_SETITEMW, 0, Address(item)) != 0;
}

intptr_t CListCtrl::GetItemData(int row) const {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  return HasRow(handle_, row) && Ask(handle_, LVM_GETITEMW, 0, Address(item)) != 0 ? item.lParam
                                                                                   : 0;
}

int CListCtrl::GetCurSel() const {
  return GetNextSelected(-1);
}

bool CListCtrl::SetCurSel(int row) {
  if (handle_ == nullptr || (row != -1 && !HasRow(handle_, row)))
    return false;
  SetState(handle_, -1, 0, LVIS_SELECTED);
  if (row == -1)
    return true;
  SetState(handle_, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  Ask(handle_, LVM_SETSELECTIONMARK, 0, row);
  return EnsureVisible(row);
}

bool CListCtrl::SelectRow(int row, bool select) {
  if (!HasRow(handle_, row))
    return false;
  SetState(handle_, row, select ? LVIS_SELECTED : 0, LVIS_SELECTED);
  return true;
}

bool CListCtrl::IsSelected(int row) const {
  return HasRow(handle_, row) &&
         Ask(handle_, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
}

int CListCtrl::GetSelectedCount() const {
  return static_cast<int>(Ask(handle_, LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetNextSelected(int after) const {
  if (handle_ == nullptr || after < -1)
    return -1;
  return static_cast<int>(Ask(handle_, LVM_GETNEXTITEM, static_cast<WPARAM>(after), LVNI_SELECTED));
}

bool CListCtrl::EnsureVisible(int row) {
  if (!HasRow(handle_, row))
    return false;
  Ask(handle_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  return true;
}
