#include "platform/framework/window/CListCtrl.h"

#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/Windows.h"

using namespace tq::headless;

namespace {

Control* Find(WindowHandle handle) {
  return FindControl(handle, tq::ControlKind::ListView);
}

const Row* FindRow(WindowHandle handle, int row) {
  const Control* const view = Find(handle);
  return view == nullptr ? nullptr : view->rows.At(row);
}

Row* ChangeRow(WindowHandle handle, int row) {
  Control* const view = Find(handle);
  return view == nullptr ? nullptr : view->rows.Change(row);
}

bool HasColumn(WindowHandle handle, int column) {
  const Control* const view = Find(handle);
  return view != nullptr && column >= 0 && column < static_cast<int>(view->columns.size());
}

} // namespace

void CListCtrl::SetStyles(unsigned styles) {
  if (Control* const view = Find(handle_))
    view->listStyles = styles & (FullRowSelect | GridLines | HoverSelect);
}

unsigned CListCtrl::GetStyles() const {
  const Control* const view = Find(handle_);
  return view == nullptr ? 0 : view->listStyles;
}

void CListCtrl::SetHoverTime(unsigned milliseconds) {
  if (Control* const view = Find(handle_))
    view->hoverTime = milliseconds;
}

unsigned CListCtrl::GetHoverTime() const {
  const Control* const view = Find(handle_);
  return view == nullptr ? 0 : view->hoverTime;
}

int CListCtrl::AddColumn(const char* title, int width) {
  Control* const view = Find(handle_);
  if (view == nullptr)
    return -1;
  view->columns.push_back({CString(title), width});
  return static_cast<int>(view->columns.size()) - 1;
}

int CListCtrl::GetColumnCount() const {
  const Control* const view = Find(handle_);
  return view == nullptr ? 0 : static_cast<int>(view->columns.size());
}

CString CListCtrl::GetColumnTitle(int column) const {
  return HasColumn(handle_, column) ? Find(handle_)->columns[static_cast<size_t>(column)].title
                                    : CString();
}

int CListCtrl::AddRow(const char* text) {
  return InsertRow(-1, text);
}

int CListCtrl::InsertRow(int row, const char* text) {
  return HasColumn(handle_, 0) ? Find(handle_)->rows.Insert(row, text) : -1;
}

bool CListCtrl::DeleteRow(int row) {
  Control* const view = Find(handle_);
  return view != nullptr && view->rows.Remove(row);
}

void CListCtrl::DeleteAllRows() {
  if (Control* const view = Find(handle_))
    view->rows.Clear();
}

bool CListCtrl::SetVirtualRows(int count) {
  Control* const view = Find(handle_);
  if (view == nullptr || !view->IsVirtual() || count < 0 || view->columns.empty())
    return false;
  view->rows.SetVirtualCount(count);
  return true;
}

int CListCtrl::GetRowCount() const {
  const Control* const view = Find(handle_);
  return view == nullptr ? 0 : view->rows.Count();
}

bool CListCtrl::SetCellText(int row, int column, const char* text) {
  Row* const at = ChangeRow(handle_, row);
  if (at == nullptr || !HasColumn(handle_, column))
    return false;
  if (column == 0) {
    at->text = text;
    return true;
  }
  const auto more = static_cast<size_t>(column - 1);
  if (at->more.size() <= more)
    at->more.resize(more + 1);
  at->more[more] = text;
  return true;
}

CString CListCtrl::GetCellText(int row, int column) const {
  const Control* const view = Find(handle_);
  if (view == nullptr || !view->rows.Holds(row) || !HasColumn(handle_, column))
    return CString();
  if (view->IsVirtual())
    return tq::DialogAccess::CellText(*view->owner->object, view->id, row, column);
  const Row* const at = FindRow(handle_, row);
  if (column == 0)
    return at->text;
  const auto more = static_cast<size_t>(column - 1);
  return more < at->more.size() ? at->more[more] : CString();
}

bool CListCtrl::SetItemData(int row, intptr_t data) {
  Row* const at = ChangeRow(handle_, row);
  if (at != nullptr)
    at->data = data;
  return at != nullptr;
}

intptr_t CListCtrl::GetItemData(int row) const {
  const Row* const at = FindRow(handle_, row);
  return at == nullptr ? 0 : at->data;
}

int CListCtrl::GetCurSel() const {
  return GetNextSelected(-1);
}

bool CListCtrl::SetCurSel(int row) {
  Control* const view = Find(handle_);
  return view != nullptr && view->rows.SelectOnly(row) && (row == -1 || EnsureVisible(row));
}

bool CListCtrl::SelectRow(int row, bool select) {
  Control* const view = Find(handle_);
  return view != nullptr && view->rows.Select(row, select);
}

bool CListCtrl::IsSelected(int row) const {
  const Control* const view = Find(handle_);
  return view != nullptr && view->rows.IsSelected(row);
}

int CListCtrl::GetSelectedCount() const {
  const Control* const view = Find(handle_);
  return view == nullptr ? 0 : view->rows.CountSelected();
}

int CListCtrl::GetNextSelected(int after) const {
  const Control* const view = Find(handle_);
  return view == nullptr ? -1 : view->rows.NextSelected(after);
}

bool CListCtrl::EnsureVisible(int row) {
  Control* const view = Find(handle_);
  if (view == nullptr || !view->rows.Holds(row))
    return false;
  view->rows.Reveal(row);
  return true;
}
