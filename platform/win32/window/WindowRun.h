// The dialogs that are up, and what the bodies of the window layer share. Internal.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogTemplate.h"

namespace tq {

// A row or an entry as a message has it.
inline WPARAM IndexParam(int index) {
  return static_cast<WPARAM>(index);
}

// One modal run.
struct Run {
  CDialog* dialog = nullptr;
  HWND window = nullptr;       // null when it was destroyed under the run
  std::set<unsigned> timers;   // those that are set: a killed one may still have a message waiting
  std::set<int> selectionNews; // list views whose SelectionChanged is on its way
  std::map<int, CString> tips; // by control
  HWND tipWindow = nullptr;    // made for the first tip
  std::wstring rowTip;         // of the row under the mouse, while it is shown
  int tipRow = -1;             // that row
  HFONT boldFont = nullptr;    // made for the first bold row
  HWND focusBehind = nullptr;  // while it lies behind another dialog: where the focus will be
};

// The innermost last.
std::vector<Run*>& Runs();
Run* FindRun(HWND dialog);

// Mutes the controls' notifications while it lives, because the program is changing them.
class Silence {
public:
  Silence() { ++depth_; }
  ~Silence() { --depth_; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  static bool IsOn() { return depth_ != 0; }

private:
  friend class Hearing;
  static int depth_;
};

// Unmutes notifications while it lives: a dialog that a muted change opened has a user.
class Hearing {
public:
  Hearing() : depth_(Silence::depth_) { Silence::depth_ = 0; }
  ~Hearing() { Silence::depth_ = depth_; }
  Hearing(const Hearing&) = delete;
  Hearing& operator=(const Hearing&) = delete;

private:
  int depth_;
};

// The kind of a control by its window class; Dialog for any other window.
ControlKind KindOf(HWND window);
inline bool HasStyle(HWND window, LONG_PTR style) {
  return (::GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

// Messages that a run sends itself, out of the range of CWnd::Post.
inline constexpr UINT kModalMessage = WM_APP + 1;     // tells the modal handler
inline constexpr UINT kSelectionMessage = WM_APP + 2; // wParam: the list view's id

INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

// WM_COMMAND and WM_NOTIFY of a dialog.
void TranslateCommand(Run& run, WPARAM wParam, LPARAM lParam);
void TranslateNotify(Run& run, const NMHDR& header);
// WM_DRAWITEM of an owner-drawn list box.
void DrawItem(Run& run, const DRAWITEMSTRUCT& item);
void SetCursorNow(WindowCursor shape);

} // namespace tq
