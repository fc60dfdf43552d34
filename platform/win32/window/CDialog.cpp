// Timers and tooltips of a dialog, on its window.
#include "platform/framework/window/CDialog.h"

#include <algorithm>

#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/window/WindowText.h"
#include "platform/win32/window/WindowTips.h"

CDialog* CDialog::FromHandle(WindowHandle handle) {
  const tq::Run* const run = tq::FindRun(handle);
  return run == nullptr ? nullptr : run->dialog;
}

bool CDialog::SetTimer(unsigned id, unsigned milliseconds) {
  tq::Run* const run = tq::FindRun(handle_);
  if (run == nullptr || ::SetTimer(run->window, id, std::max(1U, milliseconds), nullptr) == 0)
    return false;
  run->timers.insert(id);
  return true;
}

bool CDialog::KillTimer(unsigned id) {
  tq::Run* const run = tq::FindRun(handle_);
  if (run == nullptr || run->timers.erase(id) == 0)
    return false;
  ::KillTimer(run->window, id);
  return true;
}

void CDialog::SetToolTip(int controlId, const char* text) {
  tq::Run* const run = tq::FindRun(handle_);
  const HWND control = CWnd(*this, controlId).GetSafeHwnd();
  if (run == nullptr || control == nullptr)
    return;
  std::wstring wide = tq::ToWide(text);
  run->tips.erase(controlId);
  tq::SetTip(*run, control, wide.empty() ? nullptr : wide.data());
  if (wide.empty())
    return;
  run->tips[controlId] = text;
}

CString CDialog::GetToolTip(int controlId) const {
  const tq::Run* const run = tq::FindRun(handle_);
  if (run == nullptr)
    return CString();
  const auto found = run->tips.find(controlId);
  return found == run->tips.end() ? CString() : found->second;
}
