// The user's hands on real windows: the messages that the mouse and the keyboard would make are posted to
// the controls, which do the rest.
#include "tests/support/UserActions.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "platform/framework/DialogAccess.h"

namespace actions {

namespace {

constexpr DWORD kPatience = 10000; // milliseconds

tq::ControlKind KindOf(HWND window) {
  struct Class {
    const wchar_t* name;
    tq::ControlKind kind;
  };
  static constexpr Class classes[] = {
      {L"Static", tq::ControlKind::Label},      {L"Button", tq::ControlKind::Button},
      {L"Edit", tq::ControlKind::Edit},         {L"ListBox", tq::ControlKind::ListBox},
      {L"ComboBox", tq::ControlKind::ComboBox}, {WC_LISTVIEWW, tq::ControlKind::ListView},
  };
  wchar_t name[32] = {};
  ::GetClassNameW(window, name, 32);
  for (const Class& each : classes) {
    if (::lstrcmpiW(name, each.name) == 0)
      return each.kind;
  }
  return tq::ControlKind::Dialog;
}

bool IsOpen(HWND dialog) {
  const CDialog* const object = CDialog::FromHandle(dialog);
  return object != nullptr && !tq::DialogAccess::HasEnded(*object) && ::IsWindowVisible(dialog) &&
         ::IsWindowEnabled(dialog);
}

bool IsReachable(HWND control) {
  return control != nullptr && IsOpen(::GetParent(control)) && ::IsWindowVisible(control) &&
         ::IsWindowEnabled(control) && KindOf(control) != tq::ControlKind::Label;
}

WPARAM Held(Modifier modifier) {
  return modifier == Modifier::Control ? MK_CONTROL : modifier == Modifier::Shift ? MK_SHIFT : 0;
}

LPARAM Middle(const RECT& place) {
  return MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void Press(HWND control, UINT down, LPARAM point, Modifier modifier) {
  ::PostMessageW(control, down, MK_LBUTTON | Held(modifier), point);
  ::PostMessageW(control, WM_LBUTTONUP, Held(modifier), point);
  Settle();
}

// Scrolls to the row. False when it is not there.
bool FindRow(HWND control, int row, LPARAM& point) {
  RECT place{};
  if (KindOf(control) == tq::ControlKind::ListBox) {
    const LRESULT count = ::SendMessageW(control, LB_GETCOUNT, 0, 0);
    if (row < 0 || row >= count)
      return false;
    ::SendMessageW(control, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
    ::SendMessageW(control, LB_GETITEMRECT, static_cast<WPARAM>(row),
                   reinterpret_cast<LPARAM>(&place));
    point = Middle(place);
    return true;
  }
  const LRESULT count = ::SendMessageW(control, LVM_GETITEMCOUNT, 0, 0);
  if (KindOf(control) != tq::ControlKind::ListView || row < -1 || row >= count)
    return false;
  if (row == -1) { // the lower end, where no row is as long as the table is not full
    ::GetClientRect(control, &place);
    point = MAKELPARAM(place.right / 2, place.bottom - 1);
    return true;
  }
  ::SendMessageW(control, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  place.left = LVIR_LABEL;
  ::SendMessageW(control, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
  point = Middle(place);
  return true;
}

WPARAM CodeOf(Key key) {
  static constexpr WPARAM codes[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE, VK_UP,
                                     VK_DOWN,   VK_HOME,   VK_END, VK_DELETE};
  return codes[static_cast<int>(key)];
}

std::wstring Wide(const char* ansi) {
  std::wstring wide(std::string(ansi).size() + 1, L'\0');
  const int length =
      ::MultiByteToWideChar(CP_ACP, 0, ansi, -1, wide.data(), static_cast<int>(wide.size()));
  wide.resize(static_cast<size_t>(length > 0 ? length - 1 : 0));
  return wide;
}

} // namespace

std::vector<ControlView> ControlsOf(WindowHandle dialog) {
  std::vector<ControlView> views;
  for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
       child = ::GetWindow(child, GW_HWNDNEXT))
    views.push_back({child, KindOf(child)});
  return views;
}

bool Click(WindowHandle control) {
  const tq::ControlKind kind = KindOf(control);
  if (!IsReachable(control) || (kind != tq::ControlKind::Button && kind != tq::ControlKind::Edit))
    return false;
  RECT place{};
  ::GetClientRect(control, &place);
  Press(control, WM_LBUTTONDOWN, Middle(place), Modifier::None);
  return true;
}

bool ClickRow(WindowHandle control, int row, Modifier modifier) {
  LPARAM point = 0;
  if (!IsReachable(control) || !FindRow(control, row, point))
    return false;
  Press(control, WM_LBUTTONDOWN, point, modifier);
  return true;
}

bool DoubleClickRow(WindowHandle control, int row, Modifier modifier) {
  LPARAM point = 0;
  if (!ClickRow(control, row, modifier))
    return false;
  if (IsReachable(control) && FindRow(control, row, point))
    Press(control, WM_LBUTTONDBLCLK, point, modifier);
  return true;
}

bool HoverRow(WindowHandle control, int row) {
  LPARAM point = 0;
  const bool isOn =
      KindOf(control) == tq::ControlKind::ListView &&
      (::SendMessageW(control, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_TRACKSELECT) != 0;
  if (!isOn || row == -1 || !IsReachable(control) || !FindRow(control, row, point))
    return false;
  ::PostMessageW(control, WM_MOUSEHOVER, 0, point);
  return true;
}

bool PickEntry(WindowHandle control, int index) {
  const LRESULT count = ::SendMessageW(control, CB_GETCOUNT, 0, 0);
  if (!IsReachable(control) || KindOf(control) != tq::ControlKind::ComboBox || index < 0 ||
      index >= count)
    return false;
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  ::GetComboBoxInfo(control, &info);
  Press(control, WM_LBUTTONDOWN, Middle(info.rcButton), Modifier::None); // drops the list down
  RECT place{};
  ::SendMessageW(info.hwndList, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
  ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&place));
  ::PostMessageW(info.hwndList, WM_MOUSEMOVE, 0, Middle(place));
  Press(info.hwndList, WM_LBUTTONDOWN, Middle(place), Modifier::None);
  return true;
}

bool TypeText(WindowHandle dialog, const char* ansi) {
  const HWND edit = ::GetFocus();
  if (KindOf(edit) != tq::ControlKind::Edit || ::GetParent(edit) != dialog || !IsReachable(edit))
    return false;
  for (const wchar_t unit : Wide(ansi)) {
    if (!IsReachable(edit) || ::GetFocus() != edit)
      break;
    ::PostMessageW(edit, WM_CHAR, unit, 1);
    Settle();
  }
  return true;
}

bool PressKey(WindowHandle dialog, Key key) {
  if (!IsOpen(dialog))
    return false;
  const HWND focus = ::IsChild(dialog, ::GetFocus()) ? ::GetFocus() : dialog;
  ::PostMessageW(focus, WM_KEYDOWN, CodeOf(key), 1);
  ::PostMessageW(focus, WM_KEYUP, CodeOf(key), static_cast<LPARAM>(0xC0000001));
  return true;
}

bool CloseByTitleBar(WindowHandle dialog) {
  if (!IsOpen(dialog))
    return false;
  ::PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
  return true;
}

void Settle() {
  while (tq::ServeMessage(tq::Serve::Messages)) {
  }
}

bool ServeNext() {
  return ::MsgWaitForMultipleObjectsEx(0, nullptr, kPatience, QS_ALLINPUT, MWMO_INPUTAVAILABLE) !=
             WAIT_TIMEOUT &&
         tq::ServeMessage(tq::Serve::Timers);
}

} // namespace actions
