#include "platform/win32/window/WindowKeys.h"

#include <algorithm>
#include <vector>

#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/Mnemonic.h"
#include "platform/win32/window/WindowFocus.h"
#include "platform/win32/window/WindowListKeys.h"

namespace tq {

namespace {

struct KeyCode {
  WPARAM code;
  WindowKey key;
};

constexpr KeyCode kKeys[] = {
    {VK_RETURN, WindowKey::Enter},
    {VK_ESCAPE, WindowKey::Escape},
    {VK_TAB, WindowKey::Tab},
    {VK_SPACE, WindowKey::Space},
    {VK_UP, WindowKey::Up},
    {VK_DOWN, WindowKey::Down},
    {VK_HOME, WindowKey::Home},
    {VK_END, WindowKey::End},
    {VK_DELETE, WindowKey::Delete},
    {VK_PRIOR, WindowKey::PageUp},
    {VK_NEXT, WindowKey::PageDown},
    {VK_F2, WindowKey::F2},
    {'A', WindowKey::A},
    {'Y', WindowKey::Y},
    {'Z', WindowKey::Z},
};

bool IsDown(int key) {
  return ::GetKeyState(key) < 0;
}

WindowHeldKeys HeldKeys() {
  return {IsDown(VK_SHIFT), IsDown(VK_CONTROL), IsDown(VK_MENU)};
}

const KeyCode* FindKey(WPARAM code, WindowHeldKeys held) {
  const auto* const found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                         [code](const KeyCode& each) { return each.code == code; });
  if (found == std::end(kKeys) || (IsLetterKey(found->key) && !held.control))
    return nullptr;
  const bool isOffered = !held.alt || found->key == WindowKey::Up || found->key == WindowKey::Down;
  return isOffered ? found : nullptr;
}

// An open drop-down list takes its keys for itself.
bool IsDroppedDown(HWND window) {
  return KindOf(window) == ControlKind::ComboBox &&
         ::SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool OfferKey(const Run& run, HWND window, WindowKey key, WindowHeldKeys held) {
  const int id = window == run.window ? 0 : ::GetDlgCtrlID(window);
  return DialogAccess::KeyDown(*run.dialog, id, key, held) || DialogAccess::HasEnded(*run.dialog);
}

// The system would also count a button that was the default earlier.
void PressEnter(const Run& run, HWND focus) {
  const LRESULT standard = ::SendMessageW(run.window, DM_GETDEFID, 0, 0);
  int id = HIWORD(standard) == DC_HASDEFID ? LOWORD(standard) : static_cast<int>(CDialog::Accepted);
  if (KindOf(focus) == ControlKind::Button)
    id = ::GetDlgCtrlID(focus);
  const HWND button = ::GetDlgItem(run.window, id);
  if (button == nullptr || ::IsWindowEnabled(button))
    ::SendMessageW(run.window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                   reinterpret_cast<LPARAM>(button));
}

bool PressInControl(Run& run, HWND control, WindowKey key, WindowHeldKeys held) {
  if (key == WindowKey::Enter) {
    PressEnter(run, control);
    return true;
  }
  if (KindOf(control) != ControlKind::Edit)
    return PressInListControl(run, control, key, held);
  const bool all = key == WindowKey::A && held.control;
  if (all)
    CEdit(control).SelectAll();
  return all;
}

std::vector<HWND> ChildrenOf(HWND dialog) {
  std::vector<HWND> children;
  for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
       child = ::GetWindow(child, GW_HWNDNEXT))
    children.push_back(child);
  return children;
}

bool HasMnemonic(HWND control, char letter) {
  const CWnd window(control);
  return window.IsWindowVisible() && window.IsWindowEnabled() &&
         MnemonicOf(window.GetText()) == letter;
}

// The control that the letter leads to, searched from behind the focus on and around; or null.
HWND FindMnemonic(const Run& run, char letter) {
  std::vector<HWND> controls = ChildrenOf(run.window);
  const auto focus = std::find(controls.begin(), controls.end(), ::GetFocus());
  if (focus != controls.end())
    std::rotate(controls.begin(), focus + 1, controls.end());
  for (const HWND control : controls) {
    const ControlKind kind = KindOf(control);
    if (kind == ControlKind::Button && HasMnemonic(control, letter))
      return control;
    if (kind == ControlKind::Label && HasMnemonic(control, letter))
      return ::GetNextDlgTabItem(run.window, control, FALSE);
  }
  return nullptr;
}

bool PressMnemonic(Run& run, char letter) {
  const HWND target = letter == '\0' ? nullptr : FindMnemonic(run, letter);
  if (target == nullptr)
    return false;
  if (MoveFocusByKey(run, target) && KindOf(target) == ControlKind::Button)
    ::SendMessageW(target, BM_CLICK, 0, 0);
  return true;
}

// With Alt, or where a button has the focus or nothing has.
bool IsLetterMeant(const Run& run, HWND window, WindowHeldKeys held) {
  const bool isFree = window == run.window || KindOf(window) == ControlKind::Button;
  return held.alt ? !held.control : isFree && !held.control;
}

// The codes of letters and digits are the capitals.
char LetterOf(WPARAM code) {
  return code <= 'Z' ? AsMnemonic(static_cast<char>(code)) : '\0';
}

} // namespace

bool IsKeyDone(Run& run, const MSG& message) {
  const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (!isKey || IsDroppedDown(message.hwnd))
    return false;
  const WindowHeldKeys held = HeldKeys();
  if (const KeyCode* const found = FindKey(message.wParam, held)) {
    return OfferKey(run, message.hwnd, found->key, held) ||
           PressInControl(run, message.hwnd, found->key, held);
  }
  return IsLetterMeant(run, message.hwnd, held) && PressMnemonic(run, LetterOf(message.wParam));
}

} // namespace tq
