// CWnd: a window, which is a dialog or a control in one.
//
// Conventions that hold for this class and all control classes
//  1. An object is a handle and owns nothing: copying it costs nothing, destroying it leaves the
//     window. A control's object is made where it is used, CListBox lists(*this, 781), while the
//     dialog is up.
//  2. An object without a window (no such control, or the dialog is closed) may be asked anything:
//     it does nothing, and answers what an empty control would: 0, -1, false or an empty text. The
//     class is to be that of the control.
//  3. Setters never notify: what the program changes makes no event.
//  4. Rows, entries and columns are counted from 0. One out of range is no failure: it is not
//     there, so nothing is changed, and the answer is -1, false or an empty text. -1 means "none"
//     where said.
//  5. Text is bytes in the process's ANSI code page; null counts as empty. What a control shows is
//     not a key to anything: keep the data in the model, and let an entry's number or item data
//     lead there. (On Windows a text goes through Unicode, where a few rare characters of code page
//     950 have a twin.)
//  6. All of it belongs to the thread on which the terminal's windows are. Nothing throws.
#pragma once

#include <cstdint>

#include "platform/framework/CString.h"
#include "platform/framework/FrameworkApi.h"
#include "platform/framework/window/WindowTypes.h"

class TQFRAMEWORK_API CWnd {
public:
  CWnd() = default;
  // Any window of the process, the terminal's own included.
  explicit CWnd(WindowHandle handle) : handle_(handle) {}
  // The control with that id in a dialog that is up.
  CWnd(const CWnd& dialog, int id);

  // Null when the object stands for no window. A window may be gone by now: see IsWindow.
  WindowHandle GetSafeHwnd() const { return handle_; }
  bool IsWindow() const;
  // A control's id; 0 for other windows.
  int GetDlgCtrlID() const;

  // A dialog's title, a label's, button's or edit's text. A combo box has its chosen entry's and
  // cannot be set. An edit's caret goes to the start. An ampersand in the text of labels and
  // buttons marks the next letter as the key; doubled it is one.
  void SetText(const char* text);
  CString GetText() const;

  // A disabled or hidden control takes no click and no key. One that has the focus passes it on to
  // the next control that can take it, in the order of the Tab key and as SetFocus does; when there
  // is none, no control has it. A disabled dialog leaves its controls as enabled as they were.
  void EnableWindow(bool enable = true);
  bool IsWindowEnabled() const;
  void Show(bool visible = true);
  // Whether this window is set to be visible, even while its dialog is hidden.
  bool IsWindowVisible() const;

  // False, and nothing changes, for a label and for a control that is disabled or hidden. All of an
  // edit's text is selected then, so that what is typed next replaces it. In a dialog that lies
  // behind another one the control has the focus when that one has ended.
  bool SetFocus();
  bool HasFocus() const;

  // With false nothing of this window is drawn until it is called with true. Calls do not nest; a
  // hidden window stays hidden. See CRedrawLock.
  void SetRedraw(bool draw);

  // The dialog's OnMessage with these arguments: Send calls it now and answers its result, Post
  // puts the message behind those that are waiting. `code` is kFirstMessage to kLastMessage.
  // Posting to a window that is no running dialog of this layer, or with another code, returns
  // false; Send 0. Messages that are still waiting when their dialog ends are lost.
  enum : unsigned {
    kFirstMessage = 0x410,
    kLastMessage = 0x7FFF
  }; // below are the dialog manager's
  bool Post(unsigned code, intptr_t first = 0, intptr_t second = 0) const;
  intptr_t Send(unsigned code, intptr_t first = 0, intptr_t second = 0) const;

protected:
  WindowHandle handle_ = nullptr;
};

// Keeps a window from being drawn while many of its rows change.
class CRedrawLock {
public:
  explicit CRedrawLock(CWnd window) : window_(window) { window_.SetRedraw(false); }
  ~CRedrawLock() { window_.SetRedraw(true); }
  CRedrawLock(const CRedrawLock&) = delete;
  CRedrawLock& operator=(const CRedrawLock&) = delete;

private:
  CWnd window_;
};

// The shape of the mouse cursor, until it is set again or the mouse moves to another window.
TQFRAMEWORK_API void SetWindowCursor(WindowCursor shape);
TQFRAMEWORK_API WindowCursor GetWindowCursor();
