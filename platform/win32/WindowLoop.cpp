// The message loop of the runs, and the keys that a dialog may want for itself.
#include "platform/framework/DialogAccess.h"
#include "platform/win32/WindowRun.h"

namespace tq {

namespace {

struct KeyCode {
  WPARAM code;
  Key key;
};

constexpr KeyCode kKeys[] = {
    {VK_RETURN, Key::Enter}, {VK_ESCAPE, Key::Escape}, {VK_TAB, Key::Tab},
    {VK_SPACE, Key::Space},  {VK_UP, Key::Up},         {VK_DOWN, Key::Down},
    {VK_HOME, Key::Home},    {VK_END, Key::End},       {VK_DELETE, Key::Delete},
};

Run* FindRunOf(HWND window) {
  return window == nullptr ? nullptr : FindRun(::GetAncestor(window, GA_ROOT));
}

// An open drop-down list takes Enter and Escape for itself.
bool IsDroppedDown(HWND window) {
  return KindOf(window) == ControlKind::ComboBox &&
         ::SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool OfferKey(const Run& run, const MSG& message) {
  if (message.message != WM_KEYDOWN || IsDroppedDown(message.hwnd))
    return false;
  const int id = message.hwnd == run.window ? 0 : ::GetDlgCtrlID(message.hwnd);
  for (const KeyCode& each : kKeys) {
    if (each.code == message.wParam)
      return DialogAccess::KeyDown(*run.dialog, id, each.key);
  }
  return false;
}

void Deliver(MSG& message) {
  const Run* const run = FindRunOf(message.hwnd);
  if (run != nullptr) {
    const HWND window = run->window;
    if (OfferKey(*run, message) || ::IsDialogMessageW(window, &message))
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
