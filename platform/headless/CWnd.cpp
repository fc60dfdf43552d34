#include "platform/framework/window/CWnd.h"

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/Queue.h"
#include "platform/headless/Screen.h"
#include "platform/headless/user/Focus.h"

using namespace tq::headless;
using tq::ControlKind;

namespace {

WindowCursor cursor = WindowCursor::Arrow;

WindowHandle ControlOf(WindowHandle dialogHandle, int id) {
  const Dialog* const dialog = FindDialog(dialogHandle);
  const Control* const control = dialog == nullptr ? nullptr : dialog->Find(id);
  return control == nullptr ? nullptr : control->handle;
}

bool IsPrivate(unsigned code) {
  return code >= CWnd::kFirstMessage && code <= CWnd::kLastMessage;
}

void PutCaretAt(Control& control, int byte) {
  control.selectionStart = byte;
  control.selectionEnd = byte;
}

} // namespace

CWnd::CWnd(const CWnd& dialog, int id) : handle_(ControlOf(dialog.handle_, id)) {}

bool CWnd::IsWindow() const {
  return FindNode(handle_) != nullptr ||
         (CurrentScreen() != nullptr && CurrentScreen()->IsHostWindow(handle_));
}

int CWnd::GetDlgCtrlID() const {
  const Control* const control = FindControl(handle_);
  return control == nullptr ? 0 : control->id;
}

void CWnd::SetText(const char* text) {
  Node* const node = FindNode(handle_);
  if (node == nullptr)
    return;
  if (node->kind == ControlKind::Edit)
    PutCaretAt(static_cast<Control&>(*node), 0);
  if (node->kind != ControlKind::ComboBox)
    node->text = text;
}

CString CWnd::GetText() const {
  Node* const node = FindNode(handle_);
  if (node == nullptr)
    return CString();
  if (node->kind != ControlKind::ComboBox)
    return node->text;
  const Rows& rows = static_cast<Control*>(node)->rows;
  const Row* const chosen = rows.At(rows.NextSelected(-1));
  return chosen == nullptr ? CString() : chosen->text;
}

void CWnd::EnableWindow(bool enable) {
  if (Node* const node = FindNode(handle_))
    node->enabled = enable;
  if (Control* const control = FindControl(handle_))
    LeaveIfClosed(*control);
}

bool CWnd::IsWindowEnabled() const {
  const Node* const node = FindNode(handle_);
  return node != nullptr && node->enabled;
}

void CWnd::Show(bool visible) {
  if (Node* const node = FindNode(handle_))
    node->visible = visible;
  if (Control* const control = FindControl(handle_))
    LeaveIfClosed(*control);
}

bool CWnd::IsWindowVisible() const {
  const Node* const node = FindNode(handle_);
  return node != nullptr && node->visible;
}

bool CWnd::SetFocus() {
  Control* const control = FindControl(handle_);
  if (control == nullptr || !control->TakesFocus())
    return false;
  control->owner->focus = control;
  SelectText(*control);
  return true;
}

bool CWnd::HasFocus() const {
  const Control* const control = FindControl(handle_);
  return control != nullptr && control->owner == Running().back() &&
         control->owner->focus == control;
}

void CWnd::SetRedraw(bool draw) {
  if (Node* const node = FindNode(handle_))
    node->drawn = draw;
}

bool CWnd::Post(unsigned code, intptr_t first, intptr_t second) const {
  if (FindDialog(handle_) == nullptr || !IsPrivate(code))
    return false;
  Enqueue({handle_, code, first, second});
  return true;
}

intptr_t CWnd::Send(unsigned code, intptr_t first, intptr_t second) const {
  const Dialog* const dialog = FindDialog(handle_);
  if (dialog == nullptr || !IsPrivate(code))
    return 0;
  return tq::DialogAccess::Message(*dialog->object, code, first, second);
}

void SetWindowCursor(WindowCursor shape) {
  cursor = shape;
  if (Screen* const screen = CurrentScreen())
    screen->SetCursor(shape);
}

WindowCursor GetWindowCursor() {
  return cursor;
}
