#include "platform/framework/window/CComboBox.h"

#include "platform/headless/Windows.h"

using namespace tq::headless;

namespace {

Control* FindCombo(WindowHandle handle) {
  return FindControl(handle, tq::ControlKind::ComboBox);
}

const Row* FindComboRow(WindowHandle handle, int index) {
  const Control* const combo = FindCombo(handle);
  return combo == nullptr ? nullptr : combo->rows.At(index);
}

Row* ChangeComboRow(WindowHandle handle, int index) {
  Control* const combo = FindCombo(handle);
  return combo == nullptr ? nullptr : combo->rows.Change(index);
}

} // namespace

int CComboBox::AddString(const char* text) {
  return InsertString(-1, text);
}

int CComboBox::InsertString(int index, const char* text) {
  Control* const combo = FindCombo(handle_);
  return combo == nullptr ? -1 : combo->rows.Insert(index, text);
}

bool CComboBox::DeleteString(int index) {
  Control* const combo = FindCombo(handle_);
  return combo != nullptr && combo->rows.Remove(index);
}

void CComboBox::ResetContent() {
  if (Control* const combo = FindCombo(handle_))
    combo->rows.Clear();
}

int CComboBox::GetCount() const {
  const Control* const combo = FindCombo(handle_);
  return combo == nullptr ? 0 : combo->rows.Count();
}

CString CComboBox::GetItemText(int index) const {
  const Row* const at = FindComboRow(handle_, index);
  return at == nullptr ? CString() : at->text;
}

bool CComboBox::SetItemData(int index, intptr_t data) {
  Row* const at = ChangeComboRow(handle_, index);
  if (at != nullptr)
    at->data = data;
  return at != nullptr;
}

intptr_t CComboBox::GetItemData(int index) const {
  const Row* const at = FindComboRow(handle_, index);
  return at == nullptr ? 0 : at->data;
}

int CComboBox::GetCurSel() const {
  const Control* const combo = FindCombo(handle_);
  return combo == nullptr ? -1 : combo->rows.NextSelected(-1);
}

bool CComboBox::SetCurSel(int index) {
  Control* const combo = FindCombo(handle_);
  return combo != nullptr && combo->rows.SelectOnly(index);
}
