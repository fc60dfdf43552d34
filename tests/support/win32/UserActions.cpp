// The user's hands on real windows: the messages that the mouse and the keyboard would make are
// posted to the controls, which do the rest.
#include "tests/support/UserActions.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"

namespace actions {

namespace {

constexpr DWORD kPatience = 10000; // milliseconds
constexpr DWORD kHoverSlack = 1000;
constexpr int kBeside = -1;

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

// Holds the modifier's key down, and no other, as long as it lives.
class Holding {
public:
  explicit Holding(Modifier modifier) {
    ::GetKeyboardState(before_);
    BYTE now[kKeys];
    std::copy(std::begin(before_), std::end(before_), now);
    now[VK_SHIFT] = now[VK_LSHIFT] = modifier == Modifier::Shift ? kDown : 0;
    now[VK_CONTROL] = now[VK_LCONTROL] = modifier == Modifier::Control ? kDown : 0;
    now[VK_MENU] = now[VK_LMENU] = modifier == Modifier::Alt ? kDown : 0;
    ::SetKeyboardState(now);
  }
  ~Holding() { ::SetKeyboardState(before_); }
  Holding(const Holding&) = delete;
  Holding& operator=(const Holding&) = delete;

private:
  static constexpr int kKeys = 256;
  static constexpr BYTE kDown = 0x80;
  BYTE before_[kKeys] = {};
};

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

bool IsList(HWND control) {
  const tq::ControlKind kind = KindOf(control);
  return kind == tq::ControlKind::ListBox || kind == tq::ControlKind::ListView;
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

WPARAM CodeOf(Key key) {
  static constexpr WPARAM codes[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE,  VK_UP,
                                     VK_DOWN,   VK_HOME,   VK_END, VK_DELETE, VK_PRIOR,
                                     VK_NEXT,   VK_F2,     'A'};
  return codes[static_cast<int>(key)];
}

// A key goes down and up, with what follows from it.
void PressCode(HWND dialog, WPARAM code, Modifier modifier) {
  constexpr LPARAM kOnce = 1;
  constexpr LPARAM kAltHeld = 1 << 29;
  constexpr LPARAM kReleased = static_cast<LPARAM>(0xC0000000);
  const Holding holding(modifier);
  const bool alt = modifier == Modifier::Alt;
  const LPARAM state = alt ? kOnce | kAltHeld : kOnce;
  const HWND focus = ::IsChild(dialog, ::GetFocus()) ? ::GetFocus() : dialog;
  ::PostMessageW(focus, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, code, state);
  ::PostMessageW(focus, alt ? WM_SYSKEYUP : WM_KEYUP, code, state | kReleased);
  Settle();
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

bool PressKey(WindowHandle dialog, Key key, Modifier modifier) {
  if (!IsOpen(dialog))
    return false;
  PressCode(dialog, CodeOf(key), modifier);
  return true;
}

bool PressLetter(WindowHandle dialog, char letter, Modifier modifier) {
  const bool isPlain = modifier == Modifier::None || modifier == Modifier::Shift;
  const char text[] = {letter, '\0'};
  const auto code = static_cast<WPARAM>(std::toupper(static_cast<unsigned char>(letter)));
  if (!IsOpen(dialog) || (modifier == Modifier::Control && code != 'A'))
    return false;
  if (isPlain && KindOf(::GetFocus()) == tq::ControlKind::Edit)
    return TypeText(dialog, text);
  if (isPlain && (IsList(::GetFocus()) || KindOf(::GetFocus()) == tq::ControlKind::ComboBox))
    return false;
  PressCode(dialog, code, modifier);
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

} // namespace actions
