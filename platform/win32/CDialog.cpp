// Timers and tooltips of a dialog, on its window.
#include "platform/framework/CDialog.h"

#include <algorithm>

#include "platform/framework/DialogAccess.h"
#include "platform/win32/WindowRun.h"
#include "platform/win32/WindowText.h"

namespace {

TTTOOLINFOW ToolOf(HWND dialog, HWND control) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = dialog;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  return tool;
}

// Owned by the dialog's window and gone with it.
HWND TipWindowOf(tq::Run& run) {
  if (run.tipWindow == nullptr) {
    run.tipWindow = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                                      run.window, nullptr, nullptr, nullptr);
  }
  return run.tipWindow;
}

} // namespace

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
  TTTOOLINFOW tool = ToolOf(run->window, control);
  const HWND tips = TipWindowOf(*run);
  ::SendMessageW(tips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  run->tips.erase(controlId);
  std::wstring wide = tq::ToWide(text);
  if (wide.empty())
    return;
  tool.lpszText = wide.data();
  ::SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  run->tips[controlId] = text;
}

CString CDialog::GetToolTip(int controlId) const {
  const tq::Run* const run = tq::FindRun(handle_);
  if (run == nullptr)
    return CString();
  const auto found = run->tips.find(controlId);
  return found == run->tips.end() ? CString() : found->second;
}
