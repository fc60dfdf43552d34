#include "platform/win32/window/WindowEditLimit.h"

#include <commctrl.h>

#include <cwchar>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/win32/WindowsObjects.h"
#include "platform/win32/window/WindowText.h"

namespace tq {

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr wchar_t kLimitProperty[] = L"tqLimit";

std::wstring TextOf(HWND edit) {
  std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(edit)) + 1, L'\0');
  const int length = ::GetWindowTextW(edit, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<size_t>(length));
  return text;
}

// How many bytes can replace the selection.
int Room(HWND edit, int limit) {
  DWORD start = 0;
  DWORD end = 0;
  ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  std::wstring text = TextOf(edit);
  text.erase(start, end - start);
  return limit - FromWide(text).GetLength();
}

class OpenedClipboard {
public:
  explicit OpenedClipboard(HWND window) : open_(::OpenClipboard(window) != 0) {
    if (open_)
      NoteOpened(SystemObject::Clipboard);
  }
  ~OpenedClipboard() {
    if (open_ && ::CloseClipboard() != 0)
      NoteClosed(SystemObject::Clipboard);
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  HANDLE Text() const { return open_ ? ::GetClipboardData(CF_UNICODETEXT) : nullptr; }

private:
  const bool open_;
};

class LockedText {
public:
  explicit LockedText(HANDLE memory)
      : memory_(memory),
        text_(memory == nullptr ? nullptr : static_cast<const wchar_t*>(::GlobalLock(memory))) {
    if (text_ != nullptr)
      NoteOpened(SystemObject::Memory);
  }
  ~LockedText() {
    if (text_ == nullptr)
      return;
    ::GlobalUnlock(memory_);
    NoteClosed(SystemObject::Memory);
  }
  LockedText(const LockedText&) = delete;
  LockedText& operator=(const LockedText&) = delete;
  // Bounded by the block's size, since another program may have left out the NUL.
  std::wstring_view Get() const {
    if (text_ == nullptr)
      return {};
    return {text_, ::wcsnlen(text_, ::GlobalSize(memory_) / sizeof(wchar_t))};
  }

private:
  const HANDLE memory_;
  const wchar_t* const text_;
};

CString ClipboardText(HWND edit) {
  const OpenedClipboard clipboard(edit);
  const LockedText wide(clipboard.Text());
  return FromWide(wide.Get().data(), wide.Get().size());
}

// As many whole characters of the clipboard's text as fit.
void Paste(HWND edit, int limit) {
  CString text = ClipboardText(edit);
  const int room = Room(edit, limit);
  text.Truncate(room < 0 ? 0 : room);
  if (!text.IsEmpty())
    ::SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

bool IsRefused(HWND edit, WPARAM character, int limit) {
  const auto unit = static_cast<wchar_t>(character);
  return unit >= L' ' && unit != 0x7F && FromWide(&unit, 1).GetLength() > Room(edit, limit);
}

LRESULT CALLBACK LimitProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR limit) noexcept {
  const auto bytes = static_cast<int>(limit);
  if (message == WM_CHAR && IsRefused(edit, wParam, bytes)) {
    ::MessageBeep(MB_OK);
    return 0;
  }
  if (message == WM_PASTE) {
    Paste(edit, bytes);
    return 0;
  }
  if (message == WM_NCDESTROY)
    SetEditLimit(edit, 0);
  return ::DefSubclassProc(edit, message, wParam, lParam);
}

} // namespace

void SetEditLimit(HWND edit, int bytes) {
  if (bytes > 0) {
    const auto limit = static_cast<DWORD_PTR>(bytes);
    ::SetWindowSubclass(edit, LimitProc, kSubclass, limit);
    ::SetPropW(edit, kLimitProperty, reinterpret_cast<HANDLE>(limit));
    return;
  }
  ::RemoveWindowSubclass(edit, LimitProc, kSubclass);
  ::RemovePropW(edit, kLimitProperty);
}

int GetEditLimit(HWND edit) {
  return static_cast<int>(reinterpret_cast<DWORD_PTR>(::GetPropW(edit, kLimitProperty)));
}

} // namespace tq
