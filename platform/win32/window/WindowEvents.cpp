// From the notifications of the controls to the events of this layer.
#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/window/WindowRun.h"
#include "platform/win32/window/WindowText.h"
#include "platform/win32/window/WindowTips.h"

namespace tq {

namespace {

struct Translation {
  ControlKind kind;
  WORD code;
  WindowEvent event;
};

constexpr Translation kTranslations[] = {
    {ControlKind::Button, BN_CLICKED, WindowEvent::Clicked},
    {ControlKind::ListBox, LBN_SELCHANGE, WindowEvent::SelectionChanged},
    {ControlKind::ListBox, LBN_DBLCLK, WindowEvent::DoubleClicked},
    {ControlKind::ComboBox, CBN_SELCHANGE, WindowEvent::SelectionChanged},
    {ControlKind::Edit, EN_CHANGE, WindowEvent::TextChanged},
    {ControlKind::Edit, EN_SETFOCUS, WindowEvent::FocusGained},
    {ControlKind::Edit, EN_KILLFOCUS, WindowEvent::FocusLost},
};

// A focus that moves to another window, such as a message box, does not count as lost: it returns.
bool IsLeavingDialog(const Run& run, const Translation& translation) {
  return translation.event == WindowEvent::FocusLost && !::IsChild(run.window, ::GetFocus());
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
    DialogAccess::Command(*run.dialog, id, WindowEvent::Clicked);
}

// A cell of a virtual list view is to be drawn.
void GiveCellText(Run& run, const NMHDR& header) {
  LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)).item;
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0)
    return;
  const CString text = DialogAccess::CellText(*run.dialog, static_cast<int>(header.idFrom),
                                              item.iItem, item.iSubItem);
  ::lstrcpynW(item.pszText, ToWide(text).c_str(), item.cchTextMax);
}

// A list view's notification that rows were selected or deselected; of a virtual one also for many
// rows at once.
bool IsOtherSelection(const NMHDR& header) {
  UINT change = 0;
  if (header.code == LVN_ITEMCHANGED) {
    const auto& one = reinterpret_cast<const NMLISTVIEW&>(header);
    change = one.uOldState ^ one.uNewState;
  } else if (header.code == LVN_ODSTATECHANGED) {
    const auto& many = reinterpret_cast<const NMLVODSTATECHANGE&>(header);
    change = many.uOldState ^ many.uNewState;
  }
  return (change & LVIS_SELECTED) != 0;
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
  if (header.code == TTN_GETDISPINFOW && header.hwndFrom == run.tipWindow)
    return GiveRowTip(run, header);
  if (KindOf(header.hwndFrom) != ControlKind::ListView)
    return;
  if (header.code == LVN_GETDISPINFOW)
    return GiveCellText(run, header);
  if (Silence::IsOn())
    return;
  const int id = static_cast<int>(header.idFrom);
  if (header.code == NM_DBLCLK) {
    const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
    DialogAccess::Notify(*run.dialog, id, {WindowListNotice::Kind::DoubleClicked, row});
  } else if (IsOtherSelection(header) && run.selectionNews.insert(id).second) {
    ::PostMessageW(run.window, kSelectionMessage, static_cast<WPARAM>(id), 0);
  }
}

} // namespace tq
