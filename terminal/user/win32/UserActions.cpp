// The user's hands on real windows: the messages that the mouse would make are posted to the
// controls, which do the rest.
#include "terminal/user/win32/RealWindows.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"

namespace standin::actions {

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

bool IsList(HWND control) {
  const tq::ControlKind kind = KindOf(control);
  return kind == tq::ControlKind::ListBox || kind == tq::ControlKind::ListView;
}

namespace {

constexpr DWORD kPatience = 10000; // milliseconds
constexpr DWORD kHoverSlack = 1000;
constexpr int kBeside = -1;

WPARAM Held(Modifier modifier) {
  return modifier == Modifier::Control ? MK_CONTROL : modifier == Modifier::Shift ? MK_SHIFT : 0;
}

LPARAM Middle(const RECT& place) {
  return MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

// In the order in which they lie, the front one first. Labels, and what is hidden or disabled,
// leave the mouse to what lies behind.
bool IsInFront(HWND control, LPARAM point) {
  POINT screen{static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
  ::ClientToScreen(control, &screen);
  for (HWND child = ::GetWindow(::GetParent(control), GW_CHILD); child != nullptr;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    RECT place{};
    ::GetWindowRect(child, &place);
    if (::IsWindowVisible(child) && ::IsWindowEnabled(child) &&
        KindOf(child) != tq::ControlKind::Label && ::PtInRect(&place, screen))
      return child == control;
  }
  return false;
}

LPARAM MiddleOf(HWND control) {
  RECT place{};
  ::GetClientRect(control, &place);
  return Middle(place);
}

void Press(HWND control, UINT down, LPARAM point, Modifier modifier) {
  ::PostMessageW(control, down, MK_LBUTTON | Held(modifier), point);
  ::PostMessageW(control, WM_LBUTTONUP, Held(modifier), point);
  Settle();
}

int RowsInSight(HWND control) {
  if (KindOf(control) == tq::ControlKind::ListView)
    return static_cast<int>(::SendMessageW(control, LVM_GETCOUNTPERPAGE, 0, 0));
  RECT client{};
  ::GetClientRect(control, &client);
  const auto height = static_cast<int>(::SendMessageW(control, LB_GETITEMHEIGHT, 0, 0));
  return client.bottom / std::max(1, height);
}

int RowCount(HWND control) {
  const bool isBox = KindOf(control) == tq::ControlKind::ListBox;
  return static_cast<int>(::SendMessageW(control, isBox ? LB_GETCOUNT : LVM_GETITEMCOUNT, 0, 0));
}

RECT PlaceOfBoxRow(HWND box, int row) {
  RECT place{};
  if (!IsRowInSight(box, row))
    ::SendMessageW(box, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
  ::SendMessageW(box, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  return place;
}

RECT PlaceOfTableRow(HWND table, int row) {
  RECT place{LVIR_LABEL, 0, 0, 0};
  ::SendMessageW(table, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  ::SendMessageW(table, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
  return place;
}

// Scrolls to the row. False when it is not there, or something lies in front of it.
bool FindRow(HWND control, int row, LPARAM& point) {
  if (!IsList(control) || row < kBeside || row >= RowCount(control))
    return false;
  if (row == kBeside) { // the lower end, where no row is as long as the list is not full
    if (RowCount(control) >= RowsInSight(control))
      return false;
    RECT client{};
    ::GetClientRect(control, &client);
    point = MAKELPARAM(client.right / 2, client.bottom - 1);
  } else {
    const bool isBox = KindOf(control) == tq::ControlKind::ListBox;
    point = Middle(isBox ? PlaceOfBoxRow(control, row) : PlaceOfTableRow(control, row));
  }
  return IsInFront(control, point);
}

// Until the table's selection is another one, or the time is over.
void WaitForHover(HWND table, DWORD milliseconds) {
  const int before = CListCtrl(table).GetCurSel();
  const DWORD start = ::GetTickCount();
  for (DWORD past = 0; past < milliseconds && CListCtrl(table).GetCurSel() == before;
       past = ::GetTickCount() - start) {
    ::MsgWaitForMultipleObjectsEx(0, nullptr, milliseconds - past, QS_ALLINPUT,
                                  MWMO_INPUTAVAILABLE);
    MSG waiting{};
    if (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
      tq::ServeMessage(tq::Serve::Timers);
  }
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
  if (!IsReachable(control) || (kind != tq::ControlKind::Button && kind != tq::ControlKind::Edit) ||
      !IsInFront(control, MiddleOf(control)))
    return false;
  Press(control, WM_LBUTTONDOWN, MiddleOf(control), Modifier::None);
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
  if (!isOn || row == kBeside || !IsReachable(control) || !FindRow(control, row, point))
    return false;
  POINT screen{static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
  ::ClientToScreen(control, &screen);
  ::SetCursorPos(screen.x, screen.y);
  ::PostMessageW(control, WM_MOUSEMOVE, 0, point);
  const unsigned own = CListCtrl(control).GetHoverTime();
  WaitForHover(control, (own == 0 ? kHoverSlack : own) + kHoverSlack);
  ::SetCursorPos(0, 0);
  return true;
}

bool PickEntry(WindowHandle control, int index) {
  const LRESULT count = ::SendMessageW(control, CB_GETCOUNT, 0, 0);
  if (!IsReachable(control) || KindOf(control) != tq::ControlKind::ComboBox || index < 0 ||
      index >= count)
    return false;
  if (!IsInFront(control, MiddleOf(control)))
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

bool IsRowInSight(WindowHandle control, int row) {
  if (!IsList(control) || row < 0 || row >= RowCount(control))
    return false;
  const bool isBox = KindOf(control) == tq::ControlKind::ListBox;
  const auto top =
      static_cast<int>(::SendMessageW(control, isBox ? LB_GETTOPINDEX : LVM_GETTOPINDEX, 0, 0));
  return row >= top && row < top + RowsInSight(control);
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

} // namespace standin::actions
