#include "platform/framework/window/CListBox.h"

#include <algorithm>

#include "platform/headless/HitTest.h"
#include "platform/headless/Screen.h"

using namespace tq::headless;

namespace {

Control* FindBox(WindowHandle handle) {
  return FindControl(handle, tq::ControlKind::ListBox);
}

const Row* FindBoxRow(WindowHandle handle, int row) {
  const Control* const box = FindBox(handle);
  return box == nullptr ? nullptr : box->rows.At(row);
}

Row* ChangeBoxRow(WindowHandle handle, int row) {
  Control* const box = FindBox(handle);
  return box == nullptr ? nullptr : box->rows.Change(row);
}

} // namespace

int CListBox::AddString(const char* text) {
  return InsertString(-1, text);
}

int CListBox::InsertString(int row, const char* text) {
  Control* const box = FindBox(handle_);
  return box == nullptr ? -1 : box->rows.Insert(row, text);
}

bool CListBox::SetItemText(int row, const char* text) {
  Row* const at = ChangeBoxRow(handle_, row);
  if (at != nullptr)
    at->text = text;
  return at != nullptr;
}

bool CListBox::DeleteString(int row) {
  Control* const box = FindBox(handle_);
  return box != nullptr && box->rows.Remove(row);
}

void CListBox::ResetContent() {
  if (Control* const box = FindBox(handle_))
    box->rows.Clear();
}

int CListBox::GetCount() const {
  const Control* const box = FindBox(handle_);
  return box == nullptr ? 0 : box->rows.Count();
}

CString CListBox::GetItemText(int row) const {
  const Row* const at = FindBoxRow(handle_, row);
  return at == nullptr ? CString() : at->text;
}

bool CListBox::SetItemData(int row, intptr_t data) {
  Row* const at = ChangeBoxRow(handle_, row);
  if (at != nullptr)
    at->data = data;
  return at != nullptr;
}

intptr_t CListBox::GetItemData(int row) const {
  const Row* const at = FindBoxRow(handle_, row);
  return at == nullptr ? 0 : at->data;
}

int CListBox::GetCurSel() const {
  return GetNextSelected(-1);
}

bool CListBox::SetCurSel(int row) {
  Control* const box = FindBox(handle_);
  return box != nullptr && box->rows.SelectOnly(row) && (row == -1 || EnsureVisible(row));
}

bool CListBox::SelectRow(int row, bool select) {
  Control* const box = FindBox(handle_);
  if (box == nullptr)
    return false;
  return select && !box->IsMulti() ? row >= 0 && SetCurSel(row) : box->rows.Select(row, select);
}

bool CListBox::SelectRange(int first, int last, bool select) {
  Control* const box = FindBox(handle_);
  if (box == nullptr || !box->IsMulti() || !box->rows.Holds(first) || !box->rows.Holds(last))
    return false;
  for (int row = std::min(first, last); row <= std::max(first, last); ++row)
    box->rows.Select(row, select);
  return true;
}

bool CListBox::IsSelected(int row) const {
  const Row* const at = FindBoxRow(handle_, row);
  return at != nullptr && at->selected;
}

int CListBox::GetSelCount() const {
  const Control* const box = FindBox(handle_);
  return box == nullptr ? 0 : box->rows.CountSelected();
}

int CListBox::GetNextSelected(int after) const {
  const Control* const box = FindBox(handle_);
  return box == nullptr ? -1 : box->rows.NextSelected(after);
}

int CListBox::GetCaretIndex() const {
  const Control* const box = FindBox(handle_);
  return box == nullptr ? -1 : box->rows.Caret();
}

bool CListBox::SetCaretIndex(int row) {
  Control* const box = FindBox(handle_);
  const bool isFree = box != nullptr && (box->IsMulti() || box->rows.CountSelected() == 0);
  return isFree && box->rows.SetCaret(row) && EnsureVisible(row);
}

void CListBox::SetRowTips(bool on) {
  if (Control* const box = FindBox(handle_))
    box->rowTips = on;
}

CString CListBox::GetRowTip(int row) const {
  const Control* const box = FindBox(handle_);
  const Row* const at = FindBoxRow(handle_, row);
  if (at == nullptr || !box->rowTips)
    return CString();
  Screen* const screen = CurrentScreen();
  const bool fits =
      screen == nullptr ? FitsInRow(*box, at->text) : screen->FitsInRow(*box, at->text);
  return fits ? CString() : at->text;
}

bool CListBox::EnsureVisible(int row) {
  if (FindBoxRow(handle_, row) == nullptr)
    return false;
  FindBox(handle_)->rows.Reveal(row);
  return true;
}

void CListBox::RedrawItems() {
  if (Control* const box = FindBox(handle_))
    box->rows.Touch();
}
