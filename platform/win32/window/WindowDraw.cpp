// The rows of owner-drawn list boxes.
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/win32/WindowsObjects.h"
#include "platform/win32/window/WindowRun.h"
#include "platform/win32/window/WindowText.h"

namespace tq {

namespace {

constexpr int kIndent = 2;
constexpr wchar_t kMark[] = L"\u25CF ";

HFONT BoldFontOf(Run& run, HWND box) {
  if (run.boldFont == nullptr) {
    const auto plain = reinterpret_cast<HFONT>(::SendMessageW(box, WM_GETFONT, 0, 0));
    LOGFONTW font{};
    if (::GetObjectW(plain, sizeof font, &font) == 0)
      return plain;
    font.lfWeight = FW_BOLD;
    run.boldFont = ::CreateFontIndirectW(&font);
    if (run.boldFont != nullptr)
      NoteOpened(SystemObject::Font);
  }
  return run.boldFont;
}

// Gives the device context back as it was.
class SavedContext {
public:
  explicit SavedContext(HDC context) : context_(context), state_(::SaveDC(context)) {}
  ~SavedContext() { ::RestoreDC(context_, state_); }
  SavedContext(const SavedContext&) = delete;
  SavedContext& operator=(const SavedContext&) = delete;

private:
  HDC context_;
  int state_;
};

void DrawRow(Run& run, const DRAWITEMSTRUCT& item, const WindowItemLook& look,
             const std::wstring& text) {
  const SavedContext saved(item.hDC);
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  ::SetBkMode(item.hDC, TRANSPARENT);
  ::SetTextColor(item.hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  if (look.bold)
    ::SelectObject(item.hDC, BoldFontOf(run, item.hwndItem));
  RECT place = item.rcItem;
  place.left += kIndent;
  ::DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

} // namespace

void DrawItem(Run& run, const DRAWITEMSTRUCT& item) {
  const int row = static_cast<int>(item.itemID);
  if (row < 0 || KindOf(item.hwndItem) != ControlKind::ListBox)
    return;
  const WindowItemLook look = DialogAccess::Look(*run.dialog, static_cast<int>(item.CtlID), row);
  const std::wstring text = ToWide(CListBox(item.hwndItem).GetItemText(row));
  DrawRow(run, item, look, look.marked ? kMark + text : text);
  if ((item.itemState & ODS_FOCUS) != 0)
    ::DrawFocusRect(item.hDC, &item.rcItem);
}

} // namespace tq
