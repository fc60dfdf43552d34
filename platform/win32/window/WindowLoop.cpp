// The message loop of the runs.
#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/window/WindowFocus.h"
#include "platform/win32/window/WindowKeys.h"
#include "platform/win32/window/WindowTips.h"

namespace tq {

namespace {

Run* FindRunOf(HWND window) {
  return window == nullptr ? nullptr : FindRun(::GetAncestor(window, GA_ROOT));
}

void Deliver(MSG& message) {
  Run* const run = FindRunOf(message.hwnd);
  if (run != nullptr) {
    const HWND window = run->window;
    TellTips(*run, message);
    if (IsMouseWithoutEffect(*run, message) || IsKeyDone(*run, message) ||
        ::IsDialogMessageW(window, &message))
      return;
  }
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

bool Take(MSG& message, UINT first, UINT last) {
  return ::PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != FALSE;
}

bool Next(MSG& message, Serve what) {
  if (what == Serve::Timers)
    return ::GetMessageW(&message, nullptr, 0, 0) > 0;
  return Take(message, 0, WM_TIMER - 1) || Take(message, WM_TIMER + 1, 0xFFFF);
}

} // namespace

bool ServeMessage(Serve what) {
  MSG message{};
  if (!Next(message, what)) {
    if (what == Serve::Timers)
      ::PostQuitMessage(static_cast<int>(message.wParam)); // for the terminal's own loop
    return false;
  }
  Deliver(message);
  return true;
}

} // namespace tq
