// CDialog: a modal dialog. A dialog derives from it, names its template, and overrides the handlers
// that it needs. dialogs.md shows one from beginning to end.
//
// The order of events in a run, the same on every system:
//  1. The window is made of the template, hidden. OnInitDialog is called. Then it is shown, and its
//     parent takes no input until it ends.
//  2. One after the other: messages that were posted, in their order; what the user does; and, only
//     while nothing else is waiting, the timers that are due. Each handler ends before the next
//     begins, unless it runs a dialog of its own: then messages and timers of both dialogs are
//     served.
//  3. EndDialog notes the end; the handler goes on to its own end. When it has returned and the
//     innermost run is this dialog's, the window is destroyed and DoModal returns.
//
// Where there is no screen (WindowKind.h) controls are kept in memory. Timers then go by a clock
// that jumps to the next timer when nothing else is waiting. When no timer is set either, nobody
// could ever end the run: OnCancel is called, and if that does not end the dialog it ends with
// Cancelled.
//
// On Linux the parent is a window of this layer, or the number of a window of the host's own (the
// WId of one of its Qt widgets); a host on another toolkit gives none.
#pragma once

#include "platform/framework/window/CWnd.h"

namespace tq {
struct DialogAccess;
}

class TQFRAMEWORK_API CDialog : public CWnd {
public:
  // The end codes that have a meaning of their own. A dialog may end with any other.
  enum EndCode : int {
    Failed = -1, // the dialog could not be created, or was running already
    Accepted = 1,
    Cancelled = 2,
  };

  // `parent` is copied; null, or a window that is gone when the run starts, means no parent, and a
  // control means the window that it is in. The template is looked up when the run starts, in the
  // resources then in force (ResourceContext.h).
  explicit CDialog(unsigned templateId, const CWnd* parent = nullptr);
  virtual ~CDialog();
  CDialog(const CDialog&) = delete;
  CDialog& operator=(const CDialog&) = delete;

  // Shows the dialog and returns its end code when it has ended. Failed, without any handler having
  // been called, when there is no such template, when the system cannot make its window, or when
  // this object is running. A dialog whose window is destroyed from outside ends with Cancelled.
  // May be run again.
  virtual int DoModal();

  // Ends the run with `code`; of several calls the last one counts. May be called at any time of
  // the run, from OnInitDialog on (the dialog is then never shown), and for an outer dialog while
  // an inner one is up: the outer one ends when the inner one has. Outside of a run it does
  // nothing.
  void EndDialog(int code);
  bool IsRunning() const { return handle_ != nullptr; }

  // The dialog that runs in that window, or null.
  static CDialog* FromHandle(WindowHandle handle);

  // OnTimer(id) every `milliseconds` (at least 1) until the timer is killed or the dialog ends.
  // Setting one that runs starts it anew. False, and nothing is set, outside of a run. A killed
  // timer never fires, even when it was due.
  bool SetTimer(unsigned id, unsigned milliseconds);
  bool KillTimer(unsigned id); // false when there was none

  // The text that appears when the mouse rests on a control; an empty one takes it away.
  void SetToolTip(int controlId, const char* text);
  CString GetToolTip(int controlId) const;

protected:
  // The controls are there, empty and as the template says. True: the focus goes to the first
  // control that can take it. False: the handler has set it.
  virtual bool OnInitDialog() { return true; }

  // Button 1, and Enter where no other button takes it. Button 2, Escape and the title bar's
  // button. They come here and not to OnCommand, whether or not the template has such a button;
  // while it has one that is disabled they do not come.
  virtual void OnOK() { EndDialog(Accepted); }
  virtual void OnCancel() { EndDialog(Cancelled); }

  virtual void OnCommand(int id, WindowEvent event);
  virtual void OnNotify(int id, const WindowListNotice& notice); // list views
  virtual void OnTimer(unsigned id);
  // Messages of Post and Send. The result is Send's.
  virtual intptr_t OnMessage(unsigned code, intptr_t first, intptr_t second);

  // A key, before the dialog and the control `id` that has the focus (0: none has) see it. True
  // takes it away from them. With Alt held only Up and Down come here. Otherwise
  //  - Enter clicks the button that has the focus, or else the template's default button, or else
  //    means OK; Escape cancels;
  //  - Tab goes to the next control that can take the focus, with Shift to the one before;
  //  - Alt and a letter go to the control whose text has that letter behind an ampersand, and click
  //    it when it is a button; for a label it is the next control that can take the focus. Where a
  //    button has the focus the letter alone does so too. A control that is disabled or hidden has
  //    no letter;
  //  - Control and A select all of an edit or of a list of several selections. Control and Z, and
  //    Control and Y, are the system's: on Windows an edit takes its last typing back;
  //  - in lists keys do what CListBox.h says.
  virtual bool OnKey(int id, WindowKey key, WindowHeldKeys held);

  // Asked for each row of an owner-drawn list box when it is drawn.
  virtual void OnItemLook(int id, int row, WindowItemLook& look);

  // The text of a cell of a virtual list view (CListCtrl.h), asked for each time that it is needed.
  virtual CString OnCellText(int id, int row, int column);

private:
  friend struct tq::DialogAccess;

  unsigned templateId_;
  WindowHandle parent_;
  int endCode_ = Failed;
  bool ended_ = false;
};

namespace tq {

// For tests that act as the user: called once in each run, as the first message behind
// OnInitDialog, unless that ended the dialog. It may run message loops and dialogs. Returns the
// handler before; null is none.
using ModalHandler = void (*)(CDialog& dialog);
TQFRAMEWORK_API ModalHandler SetModalHandler(ModalHandler handler);

} // namespace tq
