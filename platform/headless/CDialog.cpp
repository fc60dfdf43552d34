// The modal run, timers and tooltips in memory.
#include "platform/framework/window/CDialog.h"

#include <algorithm>
#include <climits>

#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/Queue.h"
#include "platform/headless/Screen.h"
#include "platform/headless/user/UserInput.h"

using namespace tq::headless;

namespace {

// A control given as the parent means its dialog.
WindowHandle DialogOf(WindowHandle parent) {
  const Control* const control = FindControl(parent);
  return control == nullptr ? parent : control->owner->handle;
}

// Keeps a parent from taking input while a dialog is up.
class ParentDisabled {
public:
  explicit ParentDisabled(WindowHandle parent)
      : parent_(DialogOf(parent)), before_(parent_.IsWindowEnabled()) {
    parent_.EnableWindow(false);
  }
  ~ParentDisabled() { parent_.EnableWindow(before_); }
  ParentDisabled(const ParentDisabled&) = delete;
  ParentDisabled& operator=(const ParentDisabled&) = delete;

private:
  CWnd parent_;
  bool before_;
};

void FocusFirst(Dialog& dialog) {
  for (const auto& control : dialog.controls) {
    if (control->TakesFocus()) {
      CWnd(control->handle).SetFocus();
      return;
    }
  }
}

// Nothing is left that could end the dialog: as if the user gave up.
void GiveUp(CDialog& object) {
  tq::DialogAccess::Command(object, CDialog::Cancelled, WindowEvent::Clicked);
  if (!tq::DialogAccess::HasEnded(object))
    tq::DialogAccess::SetEnd(object, CDialog::Cancelled);
}

void Run(Dialog& dialog, CDialog& object) {
  const bool focusFirst = tq::DialogAccess::Init(object);
  if (tq::DialogAccess::HasEnded(object))
    return;
  dialog.visible = true;
  if (focusFirst)
    FocusFirst(dialog);
  if (Screen* const screen = CurrentScreen())
    screen->Refresh();
  Enqueue({dialog.handle, kModalMessage, 0, 0});
  while (!tq::DialogAccess::HasEnded(object)) {
    if (!tq::ServeMessage(tq::Serve::Timers))
      GiveUp(object);
  }
}

// Where there is a screen, and where there should be one.
bool OpenOnScreen(Dialog& dialog, WindowHandle parent) {
  Screen* const screen = CurrentScreen();
  return screen == nullptr ? !IsScreenLacking() : screen->Open(dialog, parent);
}

void Destroy(const Dialog& dialog) {
  if (Screen* const screen = CurrentScreen())
    screen->Close(dialog);
  DropMessages(dialog.handle);
  for (const auto& control : dialog.controls)
    Forget(*control);
  Forget(dialog);
}

} // namespace

namespace tq {

namespace {

constexpr unsigned kForever = UINT_MAX;

} // namespace

int RunModal(CDialog& object) {
  const ScreenUse use;
  const std::unique_ptr<Dialog> dialog = MakeDialog(DialogAccess::TemplateId(object));
  if (dialog == nullptr)
    return CDialog::Failed;
  dialog->object = &object;
  if (!OpenOnScreen(*dialog, DialogAccess::Parent(object))) {
    Destroy(*dialog);
    return CDialog::Failed;
  }
  const ParentDisabled disabled(DialogAccess::Parent(object));
  Running().push_back(dialog.get());
  DialogAccess::Begin(object, dialog->handle);
  Run(*dialog, object);
  Running().pop_back();
  Destroy(*dialog);
  return DialogAccess::Finish(object);
}

// The loop looks at the end code after each message.
void WakeModal(CDialog&) {
  if (Screen* const screen = CurrentScreen())
    screen->Wake();
}

bool ServeMessage(Serve what) {
  if (DeliverMessage())
    return true;
  if (what == Serve::Timers)
    return ServeWithin(kForever);
  return CurrentScreen() != nullptr && CurrentScreen()->Serve(0);
}

namespace headless {

bool ServeWithin(unsigned patience) {
  if (DeliverMessage())
    return true;
  Screen* const screen = CurrentScreen();
  if (screen == nullptr)
    return FireTimer();
  if (screen->Serve(0) || FireTimer(Now()))
    return true;
  const uint64_t due = NextDue();
  const bool came = screen->Serve(patience);
  return came || patience == kForever || due <= Now();
}

} // namespace headless

} // namespace tq

CDialog* CDialog::FromHandle(WindowHandle handle) {
  Dialog* const dialog = FindDialog(handle);
  return dialog == nullptr ? nullptr : dialog->object;
}

bool CDialog::SetTimer(unsigned id, unsigned milliseconds) {
  Dialog* const dialog = FindDialog(handle_);
  if (dialog == nullptr)
    return false;
  StartTimer(*dialog, id, milliseconds);
  return true;
}

bool CDialog::KillTimer(unsigned id) {
  Dialog* const dialog = FindDialog(handle_);
  return dialog != nullptr && dialog->timers.erase(id) != 0;
}

void CDialog::SetToolTip(int controlId, const char* text) {
  Dialog* const dialog = FindDialog(handle_);
  if (dialog == nullptr || dialog->Find(controlId) == nullptr)
    return;
  const CString tip(text);
  if (tip.IsEmpty())
    dialog->tips.erase(controlId);
  else
    dialog->tips[controlId] = tip;
}

CString CDialog::GetToolTip(int controlId) const {
  Dialog* const dialog = FindDialog(handle_);
  if (dialog == nullptr)
    return CString();
  const auto found = dialog->tips.find(controlId);
  return found == dialog->tips.end() ? CString() : found->second;
}
