#include "platform/framework/window/CWnd.h"

#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/window/WindowFocus.h"
#include "platform/win32/window/WindowText.h"

using tq::ControlKind;
using tq::Silence;

namespace {

constexpr wchar_t kNotDrawn[] =
    L"tqNotDrawn"; // property of a window between SetRedraw(false) and (true)

WindowCursor cursor = WindowCursor::Arrow;

bool IsPrivate(unsigned code) {
  return code >= CWnd::kFirstMessage && code <= CWnd::kLastMessage;
}

} // namespace

// Labels that nobody asks for have id 0.
CWnd::CWnd(const CWnd& dialog, int id)
    : handle_(id == 0 || dialog.handle_ == nullptr ? nullptr : ::GetDlgItem(dialog.handle_, id)) {}

bool CWnd::IsWindow() const {
  return ::IsWindow(handle_) != FALSE;
}

int CWnd::GetDlgCtrlID() const {
  return tq::HasStyle(handle_, WS_CHILD) ? ::GetDlgCtrlID(handle_) : 0;
}

void CWnd::SetText(const char* text) {
  const Silence silence;
  if (handle_ != nullptr && tq::KindOf(handle_) != ControlKind::ComboBox)
    ::SetWindowTextW(handle_, tq::ToWide(text).c_str());
}

CString CWnd::GetText() const {
  std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(handle_)) + 1, L'\0');
  const int length = ::GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()));
  return tq::FromWide(text.data(), static_cast<size_t>(length));
}

void CWnd::EnableWindow(bool enable) {
  const Silence silence;
  if (enable) {
    ::EnableWindow(handle_, TRUE);
    return;
  }
  const tq::FocusGoesOn focus(handle_);
  ::EnableWindow(handle_, FALSE);
}

bool CWnd::IsWindowEnabled() const {
  return ::IsWindowEnabled(handle_) != FALSE;
}

void CWnd::Show(bool visible) {
  const Silence silence;
  ::RemovePropW(handle_, kNotDrawn);
  if (visible) {
    ::ShowWindow(handle_, SW_SHOWNA);
    return;
  }
  const tq::FocusGoesOn focus(handle_);
  ::ShowWindow(handle_, SW_HIDE);
}

bool CWnd::IsWindowVisible() const {
  return tq::HasStyle(handle_, WS_VISIBLE) || ::GetPropW(handle_, kNotDrawn) != nullptr;
}

bool CWnd::SetFocus() {
  tq::Run* const run = tq::FindRun(::GetParent(handle_));
  const bool reachable = IsWindowEnabled() && IsWindowVisible();
  if (run == nullptr || !reachable || tq::KindOf(handle_) == ControlKind::Label)
    return false;
  tq::PutFocus(*run, handle_);
  return true;
}

bool CWnd::HasFocus() const {
  return handle_ != nullptr && ::GetFocus() == handle_;
}

// For many windows the system stores "hidden" and "not drawn" in one bit, so that drawing a hidden
// window again would show it. The property tells them apart.
void CWnd::SetRedraw(bool draw) {
  const bool isDrawn = ::GetPropW(handle_, kNotDrawn) == nullptr;
  if (handle_ == nullptr || draw == isDrawn || !IsWindowVisible())
    return;
  ::SendMessageW(handle_, WM_SETREDRAW, draw ? TRUE : FALSE, 0);
  if (!draw) {
    ::SetPropW(handle_, kNotDrawn, handle_);
    return;
  }
  ::RemovePropW(handle_, kNotDrawn);
  ::RedrawWindow(handle_, nullptr, nullptr,
                 RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
}

bool CWnd::Post(unsigned code, intptr_t first, intptr_t second) const {
  return tq::FindRun(handle_) != nullptr && IsPrivate(code) &&
         ::PostMessageW(handle_, code, static_cast<WPARAM>(first), second) != FALSE;
}

intptr_t CWnd::Send(unsigned code, intptr_t first, intptr_t second) const {
  const tq::Run* const run = tq::FindRun(handle_);
  if (run == nullptr || !IsPrivate(code))
    return 0;
  return tq::DialogAccess::Message(*run->dialog, code, first, second);
}

void tq::SetCursorNow(WindowCursor shape) {
  ::SetCursor(::LoadCursorA(nullptr, shape == WindowCursor::Wait ? IDC_WAIT : IDC_ARROW));
}

void SetWindowCursor(WindowCursor shape) {
  cursor = shape;
  tq::SetCursorNow(shape);
}

WindowCursor GetWindowCursor() {
  return cursor;
}
