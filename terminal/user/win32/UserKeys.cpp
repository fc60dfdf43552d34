// The user's hands on the keyboard: the messages that keys would make are posted to the control
// that has the focus.
#include <algorithm>
#include <cctype>
#include <string>

#include "terminal/user/win32/RealWindows.h"

namespace standin::actions {

namespace {

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

WPARAM CodeOf(WindowKey key) {
  static constexpr WPARAM codes[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE,  VK_UP,
                                     VK_DOWN,   VK_HOME,   VK_END, VK_DELETE, VK_PRIOR,
                                     VK_NEXT,   VK_F2,     'A',    'Y',       'Z'};
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

std::wstring Wide(const char* ansi) {
  std::wstring wide(std::string(ansi).size() + 1, L'\0');
  const int length =
      ::MultiByteToWideChar(CP_ACP, 0, ansi, -1, wide.data(), static_cast<int>(wide.size()));
  wide.resize(static_cast<size_t>(length > 0 ? length - 1 : 0));
  return wide;
}

} // namespace

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

bool PressKey(WindowHandle dialog, WindowKey key, Modifier modifier) {
  if (!IsOpen(dialog))
    return false;
  PressCode(dialog, CodeOf(key), modifier);
  return true;
}

bool PressLetter(WindowHandle dialog, char letter, Modifier modifier) {
  const bool isPlain = modifier == Modifier::None || modifier == Modifier::Shift;
  const char text[] = {letter, '\0'};
  const auto code = static_cast<WPARAM>(std::toupper(static_cast<unsigned char>(letter)));
  if (!IsOpen(dialog) ||
      (modifier == Modifier::Control && code != 'A' && code != 'Y' && code != 'Z'))
    return false;
  if (isPlain && KindOf(::GetFocus()) == tq::ControlKind::Edit)
    return TypeText(dialog, text);
  if (isPlain && (IsList(::GetFocus()) || KindOf(::GetFocus()) == tq::ControlKind::ComboBox))
    return false;
  PressCode(dialog, code, modifier);
  return true;
}

} // namespace standin::actions
