// The modal run: from the DIALOG resource to the end code.
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ResourceContext.h"
#include "platform/win32/WindowsObjects.h"
#include "platform/win32/window/WindowFocus.h"

namespace tq {

namespace {

constexpr WORD kTraditionalChinese = 1028;
constexpr WORD kSimplifiedChinese = 2052;

const DLGTEMPLATE* FindTemplate(const Resources& resources, unsigned id) {
  const auto module = static_cast<HMODULE>(resources.module);
  const WORD language = resources.traditional ? kTraditionalChinese : kSimplifiedChinese;
  // For the system a null module means the program, whose dialogs are not wanted here.
  if (module == nullptr)
    return nullptr;
  const HRSRC found = ::FindResourceExA(module, RT_DIALOG, MAKEINTRESOURCEA(id), language);
  const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(module, found);
  return loaded == nullptr ? nullptr : static_cast<const DLGTEMPLATE*>(::LockResource(loaded));
}

void RegisterControls() {
  static const INITCOMMONCONTROLSEX classes = {sizeof classes,
                                               ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  static const BOOL done = ::InitCommonControlsEx(&classes);
  static_cast<void>(done);
}

// Disables the parent's window while a dialog is up.
class ParentDisabled {
public:
  explicit ParentDisabled(HWND parent)
      : window_(::GetAncestor(parent, GA_ROOT)), before_(::IsWindowEnabled(window_)) {
    ::EnableWindow(window_, FALSE);
  }
  ~ParentDisabled() { ::EnableWindow(window_, before_); }
  ParentDisabled(const ParentDisabled&) = delete;
  ParentDisabled& operator=(const ParentDisabled&) = delete;

private:
  HWND window_;
  BOOL before_;
};

void NoteGone(HWND window) {
  if (window != nullptr && !::IsWindow(window))
    NoteClosed(SystemObject::Window);
}

// The window on which a run is, gone with it.
class RunWindow {
public:
  RunWindow(Run& run, HWND window) : run_(run), window_(window) {
    NoteOpened(SystemObject::Window);
    run_.window = window;
    Runs().push_back(&run_);
  }
  ~RunWindow() {
    const Silence silence;
    const HWND window = run_.window;
    run_.window = nullptr;
    Runs().pop_back();
    if (window != nullptr)
      ::DestroyWindow(window);
    NoteGone(window_);
    NoteGone(run_.tipWindow);
    if (run_.boldFont != nullptr && ::DeleteObject(run_.boldFont) != 0)
      NoteClosed(SystemObject::Font);
  }
  RunWindow(const RunWindow&) = delete;
  RunWindow& operator=(const RunWindow&) = delete;

private:
  Run& run_;
  const HWND window_;
};

// Shows the window with the focus where OnInitDialog put it, or on the first control.
void Open(const Run& run, bool focusFirst) {
  const Silence silence;
  const HWND focus = ::GetFocus();
  const bool keep = !focusFirst && ::IsChild(run.window, focus);
  ::ShowWindow(run.window, SW_SHOW);
  const HWND target = keep ? focus : ::GetNextDlgTabItem(run.window, nullptr, FALSE);
  if (target != nullptr && (keep || focusFirst))
    ::SendMessageW(run.window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
}

void Loop(CDialog& dialog) {
  while (!DialogAccess::HasEnded(dialog)) {
    if (!ServeMessage(Serve::Timers))
      DialogAccess::SetEnd(dialog, CDialog::Cancelled);
  }
}

void RunWindowOf(Run& run) {
  if (const bool focusFirst = DialogAccess::Init(*run.dialog);
      !DialogAccess::HasEnded(*run.dialog)) {
    Open(run, focusFirst);
    ::PostMessageW(run.window, kModalMessage, 0, 0);
    Loop(*run.dialog);
  }
}

HWND Make(CDialog& dialog, HWND parent) {
  const Silence silence;
  const Resources& resources = ResourceContext::Current();
  const DLGTEMPLATE* const found = FindTemplate(resources, DialogAccess::TemplateId(dialog));
  if (found == nullptr)
    return nullptr;
  RegisterControls();
  return ::CreateDialogIndirectParamW(static_cast<HINSTANCE>(resources.module), found, parent,
                                      DialogProc, 0);
}

} // namespace

int RunModal(CDialog& dialog) {
  const HWND given = DialogAccess::Parent(dialog);
  const HWND parent = ::IsWindow(given) ? given : nullptr;
  const HWND window = Make(dialog, parent);
  if (window == nullptr)
    return CDialog::Failed;
  const Hearing hearing;
  const FocusBehind focus(FindRun(::GetAncestor(parent, GA_ROOT)));
  Run run;
  run.dialog = &dialog;
  const RunWindow running(run, window);
  // Enabled before the dialog's window is destroyed, so that the parent comes to the front.
  const ParentDisabled disabled(parent);
  DialogAccess::Begin(dialog, window);
  RunWindowOf(run);
  return DialogAccess::Finish(dialog);
}

void WakeModal(CDialog& dialog) {
  ::PostMessageW(dialog.GetSafeHwnd(), WM_NULL, 0, 0);
}

} // namespace tq
