#include "platform/framework/window/CComboBox.h"

#include "platform/win32/window/WindowRun.h"
#include "platform/win32/window/WindowText.h"

using tq::Silence;

namespace {

int Ask(HWND combo, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  const Silence silence;
  return combo == nullptr ? CB_ERR
                          : static_cast<int>(::SendMessageW(combo, message, wParam, lParam));
}

bool HasEntry(HWND combo, int index) {
  return index >= 0 && index < Ask(combo, CB_GETCOUNT);
}

// The control does not adjust its selection when an entry before it is inserted or deleted.
void Choose(HWND combo, int index) {
  if (Ask(combo, CB_GETCURSEL) != index)
    Ask(combo, CB_SETCURSEL, tq::IndexParam(index));
}

} // namespace

int CComboBox::AddString(const char* text) {
  return InsertString(-1, text);
}

int CComboBox::InsertString(int index, const char* text) {
  if (handle_ == nullptr || index < -1 || index > GetCount())
    return -1;
  const std::wstring wide = tq::ToWide(text);
  const int chosen = GetCurSel();
  const int at =
      Ask(handle_, CB_INSERTSTRING, tq::IndexParam(index), reinterpret_cast<LPARAM>(wide.c_str()));
  if (at < 0)
    return -1;
  Choose(handle_, chosen >= at ? chosen + 1 : chosen);
  return at;
}

bool CComboBox::DeleteString(int index) {
  if (!HasEntry(handle_, index))
    return false;
  const int chosen = GetCurSel();
  Ask(handle_, CB_DELETESTRING, tq::IndexParam(index));
  Choose(handle_, chosen == index ? -1 : chosen > index ? chosen - 1 : chosen);
  return true;
}

void CComboBox::ResetContent() {
  Ask(handle_, CB_RESETCONTENT);
}

int CComboBox::GetCount() const {
  const int count = Ask(handle_, CB_GETCOUNT);
  return count < 0 ? 0 : count;
}

CString CComboBox::GetItemText(int index) const {
  if (!HasEntry(handle_, index))
    return CString();
  std::wstring text(static_cast<size_t>(Ask(handle_, CB_GETLBTEXTLEN, tq::IndexParam(index))) + 1,
                    L'\0');
  const int length =
      Ask(handle_, CB_GETLBTEXT, tq::IndexParam(index), reinterpret_cast<LPARAM>(text.data()));
  return length <= 0 ? CString() : tq::FromWide(text.data(), static_cast<size_t>(length));
}

bool CComboBox::SetItemData(int index, intptr_t data) {
  return HasEntry(handle_, index) &&
         Ask(handle_, CB_SETITEMDATA, tq::IndexParam(index), data) != CB_ERR;
}

intptr_t CComboBox::GetItemData(int index) const {
  return HasEntry(handle_, index)
             ? ::SendMessageW(handle_, CB_GETITEMDATA, tq::IndexParam(index), 0)
             : 0;
}

int CComboBox::GetCurSel() const {
  return Ask(handle_, CB_GETCURSEL);
}

bool CComboBox::SetCurSel(int index) {
  if (handle_ == nullptr || (index != -1 && !HasEntry(handle_, index)))
    return false;
  Ask(handle_, CB_SETCURSEL, tq::IndexParam(index));
  return true;
}
