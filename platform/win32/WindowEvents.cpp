// From the notifications of the controls to the events of this layer.
#include "platform/framework/DialogAccess.h"
#include "platform/win32/WindowRun.h"

namespace tq {

namespace {

struct Translation {
  ControlKind kind;
  WORD code;
  ControlEvent event;
};

constexpr Translation kTranslations[] = {
    {ControlKind::Button, BN_CLICKED, ControlEvent::Clicked},
    {ControlKind::ListBox, LBN_SELCHANGE, ControlEvent::SelectionChanged},
    {ControlKind::ListBox, LBN_DBLCLK, ControlEvent::DoubleClicked},
    {ControlKind::ComboBox, CBN_SELCHANGE, ControlEvent::SelectionChanged},
    {ControlKind::Edit, EN_CHANGE, ControlEvent::TextChanged},
    {ControlKind::Edit, EN_SETFOCUS, ControlEvent::FocusGained},
    {ControlKind::Edit, EN_KILLFOCUS, ControlEvent::FocusLost},
};

// A focus that goes to another window, a message box say, is not lost: it comes back.
bool IsLeavingDialog(const Run& run, const Translation& translation) {
  return translation.event == ControlEvent::FocusLost && !::IsChild(run.window, ::GetFocus());
}

void TellControl(Run& run, HWND control, int id, WORD code) {
  const ControlKind kind = KindOf(control);
  for (const Translation& each : kTranslations) {
    if (each.kind == kind && each.code == code && !IsLeavingDialog(run, each))
      return DialogAccess::Command(*run.dialog, id, each.event);
  }
}

// OK or Cancel, by a button, a key or the title bar.
void Choose(Run& run, int id) {
  const HWND button = ::GetDlgItem(run.window, id);
  if (button == nullptr || ::IsWindowEnabled(button))
    DialogAccess::Command(*run.dialog, id, ControlEvent::Clicked);
}

} // namespace

void TranslateCommand(Run& run, WPARAM wParam, LPARAM lParam) {
  if (Silence::IsOn())
    return;
  const int id = LOWORD(wParam);
  const WORD code = HIWORD(wParam);
  if (code == BN_CLICKED && (id == CDialog::Accepted || id == CDialog::Cancelled))
    return Choose(run, id);
  if (lParam != 0)
    TellControl(run, reinterpret_cast<HWND>(lParam), id, code);
}

void TranslateNotify(Run& run, const NMHDR& header) {
  if (Silence::IsOn() || KindOf(header.hwndFrom) != ControlKind::ListView)
    return;
  const int id = static_cast<int>(header.idFrom);
  if (header.code == NM_DBLCLK) {
    const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
    DialogAccess::Notify(*run.dialog, id, {ListNotice::Kind::DoubleClicked, row});
  } else if (header.code == LVN_ITEMCHANGED) {
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    const bool selection = ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0;
    if (selection && run.selectionNews.insert(id).second)
      ::PostMessageW(run.window, kSelectionMessage, static_cast<WPARAM>(id), 0);
  }
}

} // namespace tq
