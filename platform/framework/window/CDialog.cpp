// What a dialog does without regard to how its window is made.
#include "platform/framework/window/DialogAccess.h"

namespace {

tq::ModalHandler modalHandler = nullptr;

} // namespace

CDialog::CDialog(unsigned templateId, const CWnd* parent)
    : templateId_(templateId), parent_(parent == nullptr ? nullptr : parent->GetSafeHwnd()) {}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
  return IsRunning() ? Failed : tq::RunModal(*this);
}

void CDialog::EndDialog(int code) {
  if (!IsRunning())
    return;
  tq::DialogAccess::SetEnd(*this, code);
  tq::WakeModal(*this);
}

void CDialog::OnCommand(int, WindowEvent) {}

void CDialog::OnNotify(int, const WindowListNotice&) {}

void CDialog::OnTimer(unsigned) {}

intptr_t CDialog::OnMessage(unsigned, intptr_t, intptr_t) {
  return 0;
}

bool CDialog::OnKey(int, WindowKey, WindowHeldKeys) {
  return false;
}

void CDialog::OnItemLook(int, int, WindowItemLook&) {}

CString CDialog::OnCellText(int, int, int) {
  return CString();
}

namespace tq {

void DialogAccess::Begin(CDialog& dialog, WindowHandle handle) {
  dialog.handle_ = handle;
  dialog.endCode_ = CDialog::Failed;
  dialog.ended_ = false;
}

int DialogAccess::Finish(CDialog& dialog) {
  dialog.handle_ = nullptr;
  return dialog.endCode_;
}

void DialogAccess::SetEnd(CDialog& dialog, int code) {
  dialog.endCode_ = code;
  dialog.ended_ = true;
}

void DialogAccess::Command(CDialog& dialog, int id, WindowEvent event) {
  if (dialog.ended_)
    return;
  if (event == WindowEvent::Clicked && id == CDialog::Accepted)
    return dialog.OnOK();
  if (event == WindowEvent::Clicked && id == CDialog::Cancelled)
    return dialog.OnCancel();
  dialog.OnCommand(id, event);
}

void DialogAccess::Notify(CDialog& dialog, int id, const WindowListNotice& notice) {
  if (!dialog.ended_)
    dialog.OnNotify(id, notice);
}

void DialogAccess::Timer(CDialog& dialog, unsigned id) {
  if (!dialog.ended_)
    dialog.OnTimer(id);
}

void DialogAccess::Posted(CDialog& dialog, unsigned code, intptr_t first, intptr_t second) {
  if (!dialog.ended_)
    dialog.OnMessage(code, first, second);
}

bool DialogAccess::KeyDown(CDialog& dialog, int id, WindowKey key, WindowHeldKeys held) {
  return !dialog.ended_ && dialog.OnKey(id, key, held);
}

CString DialogAccess::CellText(CDialog& dialog, int id, int row, int column) {
  return dialog.OnCellText(id, row, column);
}

WindowItemLook DialogAccess::Look(CDialog& dialog, int id, int row) {
  WindowItemLook look;
  dialog.OnItemLook(id, row, look);
  return look;
}

void DialogAccess::TellModalHandler(CDialog& dialog) {
  if (modalHandler != nullptr && !dialog.ended_)
    modalHandler(dialog);
}

ModalHandler SetModalHandler(ModalHandler handler) {
  const ModalHandler before = modalHandler;
  modalHandler = handler;
  return before;
}

} // namespace tq
