#include "platform/win32/window/WindowTips.h"

#include "platform/framework/window/CListBox.h"
#include "platform/win32/WindowsObjects.h"
#include "platform/win32/window/WindowText.h"

namespace tq {

namespace {

constexpr wchar_t kRowTips[] = L"tqRowTips"; // property of a list box that shows them
constexpr int kNoRow = -1;

TTTOOLINFOW ToolOf(HWND dialog, HWND control) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = dialog;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  return tool;
}

// Owned by the dialog's window and destroyed with it.
HWND TipWindowOf(Run& run) {
  if (run.tipWindow == nullptr) {
    run.tipWindow = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                      WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                                      run.window, nullptr, nullptr, nullptr);
    if (run.tipWindow != nullptr)
      NoteOpened(SystemObject::Window);
  }
  return run.tipWindow;
}

int RowAt(HWND box, POINT point) {
  const LRESULT found = ::SendMessageW(box, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
  const int row = LOWORD(found);
  RECT place{};
  const bool is =
      HIWORD(found) == 0 && ::SendMessageW(box, LB_GETITEMRECT, static_cast<WPARAM>(row),
                                           reinterpret_cast<LPARAM>(&place)) != LB_ERR;
  return is && ::PtInRect(&place, point) ? row : kNoRow;
}

// A visible tip is that of another row when the mouse moves to the next one.
void NoteMouseOnRow(Run& run, const MSG& message) {
  if (message.message != WM_MOUSEMOVE || !HasRowTips(message.hwnd))
    return;
  const int row = RowAt(message.hwnd, {static_cast<short>(LOWORD(message.lParam)),
                                       static_cast<short>(HIWORD(message.lParam))});
  if (row == run.tipRow)
    return;
  run.tipRow = row;
  ::SendMessageW(run.tipWindow, TTM_POP, 0, 0);
}

} // namespace

void SetTip(Run& run, HWND control, wchar_t* text) {
  TTTOOLINFOW tool = ToolOf(run.window, control);
  const HWND tips = TipWindowOf(run);
  ::SendMessageW(tips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  tool.lpszText = text;
  if (text != nullptr)
    ::SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void SetRowTips(Run& run, HWND box, bool on) {
  SetTip(run, box, on ? LPSTR_TEXTCALLBACKW : nullptr);
  if (on)
    ::SetPropW(box, kRowTips, box);
  else
    ::RemovePropW(box, kRowTips);
}

bool HasRowTips(HWND box) {
  return ::GetPropW(box, kRowTips) != nullptr;
}

void GiveRowTip(Run& run, const NMHDR& header) {
  const HWND box = reinterpret_cast<HWND>(header.idFrom);
  POINT mouse{};
  if (::GetCursorPos(&mouse) == FALSE || ::ScreenToClient(box, &mouse) == FALSE)
    return;
  run.rowTip = ToWide(CListBox(box).GetRowTip(RowAt(box, mouse)));
  reinterpret_cast<NMTTDISPINFOW&>(const_cast<NMHDR&>(header)).lpszText = run.rowTip.data();
}

void TellTips(Run& run, const MSG& message) {
  if (run.tipWindow == nullptr || message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST)
    return;
  NoteMouseOnRow(run, message);
  MSG mouse = message;
  ::SendMessageW(run.tipWindow, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&mouse));
}

} // namespace tq
