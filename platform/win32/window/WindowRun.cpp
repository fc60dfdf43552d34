#include "platform/win32/window/WindowRun.h"

#include "platform/framework/window/DialogAccess.h"

namespace tq {

int Silence::depth_ = 0;

std::vector<Run*>& Runs() {
  static std::vector<Run*> runs;
  return runs;
}

Run* FindRun(HWND dialog) {
  for (Run* run : Runs()) {
    if (dialog != nullptr && run->window == dialog)
      return run;
  }
  return nullptr;
}

ControlKind KindOf(HWND window) {
  struct Class {
    const wchar_t* name;
    ControlKind kind;
  };
  static constexpr Class classes[] = {
      {L"Static", ControlKind::Label},      {L"Button", ControlKind::Button},
      {L"Edit", ControlKind::Edit},         {L"ListBox", ControlKind::ListBox},
      {L"ComboBox", ControlKind::ComboBox}, {WC_LISTVIEWW, ControlKind::ListView},
  };
  wchar_t name[32] = {};
  ::GetClassNameW(window, name, 32);
  for (const Class& each : classes) {
    if (::lstrcmpiW(name, each.name) == 0)
      return each.kind;
  }
  return ControlKind::Dialog;
}

namespace {

void TellSelection(Run& run, int id) {
  run.selectionNews.erase(id);
  DialogAccess::Notify(*run.dialog, id, {WindowListNotice::Kind::SelectionChanged, -1});
}

bool KeepCursor() {
  const bool waiting = GetWindowCursor() == WindowCursor::Wait;
  if (waiting)
    SetCursorNow(WindowCursor::Wait);
  return waiting;
}

// True when the message is dealt with.
bool Handle(Run& run, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_COMMAND:
    TranslateCommand(run, wParam, lParam);
    return true;
  case WM_NOTIFY:
    TranslateNotify(run, *reinterpret_cast<const NMHDR*>(lParam));
    return false;
  case WM_TIMER:
    if (run.timers.count(static_cast<unsigned>(wParam)) != 0)
      DialogAccess::Timer(*run.dialog, static_cast<unsigned>(wParam));
    return true;
  case WM_DRAWITEM:
    DrawItem(run, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    return true;
  case WM_SETCURSOR:
    return KeepCursor();
  case kModalMessage:
    DialogAccess::TellModalHandler(*run.dialog);
    return true;
  case kSelectionMessage:
    TellSelection(run, static_cast<int>(wParam));
    return true;
  default:
    return false;
  }
}

// The window was destroyed from outside. If a sent message did it, the run's loop still waits for a
// posted one, which the window can no longer get.
void NoteDestroyed(Run& run) {
  run.window = nullptr;
  if (!DialogAccess::HasEnded(*run.dialog))
    DialogAccess::SetEnd(*run.dialog, CDialog::Cancelled);
  ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

} // namespace

INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  Run* const run = FindRun(window);
  if (run == nullptr)
    return FALSE;
  if (message == WM_DESTROY) {
    NoteDestroyed(*run);
    return FALSE;
  }
  if (message >= CWnd::kFirstMessage && message <= CWnd::kLastMessage) {
    DialogAccess::Posted(*run->dialog, message, static_cast<intptr_t>(wParam), lParam);
    return TRUE;
  }
  const bool handled = Handle(*run, message, wParam, lParam);
  if (handled && message == WM_SETCURSOR)
    ::SetWindowLongPtrW(window, DWLP_MSGRESULT, TRUE);
  return handled ? TRUE : FALSE;
}

} // namespace tq
