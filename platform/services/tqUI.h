// tqUI: what the terminal's dialogs have in common. All of it runs on the terminal's user-interface
// thread. Nothing throws. Objects are made by whoever calls, and the library derives its dialogs
// from CSingletonDlg: members, their order, sizes and the order of virtual functions are part of
// the binary interface and do not change.
#pragma once

#include "platform/Compiler.h"
#include "platform/framework/window/CButton.h"
#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/CEdit.h"

// The base of dialogs that must not be open twice. Those that are built with the same key are one
// family, whatever their classes and templates: they work on the same data, of which each has a
// copy of its own, so that the one that closes last would undo what the other did.
//
// Of a family at most one dialog runs at a time in the process, and what is opened from within it:
// a dialog may run when none of its family does, or when its parent is the innermost of its family
// that runs. Any other is refused: DoModal brings that innermost one to the front and returns
// Failed at once, no handler having been called. A dialog may be built and destroyed at any time;
// only runs count.
class TQ_SERVICE_API CSingletonDlg : public CDialog {
public:
  // `key` is copied and compared byte by byte; null counts as empty. `parent` as with CDialog.
  // `option` is the terminal's and is passed as 0.
  CSingletonDlg(const char* key, unsigned templateId, const CWnd* parent, int option);
  ~CSingletonDlg() override;

  // As CDialog's, with the rule above.
  int DoModal() override;

private:
  CString key_;
  WindowHandle opener_; // of the parent, null for none
};

// A button with a picture of the terminal's. As all control objects it is made while its dialog is
// up, and is a handle that owns nothing.
class TQ_SERVICE_API CTQIconButton : public CButton {
public:
  // Gives the icon button `id` of the dialog its picture. Without such a button nothing happens.
  CTQIconButton(const CWnd& dialog, int id, WindowButtonIcon icon);
};

// The tips of one dialog: the text that appears when the mouse rests on a control. They go with the
// window. The dialog must outlive the object.
class TQ_SERVICE_API CTQToolTip {
public:
  explicit CTQToolTip(CDialog& dialog);

  // Gives a control its tip, in the place of the one that it had; an empty or null text takes it
  // away. Non-zero when the dialog is up and has the control.
  int AddTool(int controlId, const char* text);

private:
  CDialog& dialog_;
};

// An edit for a name or a code: it takes as many bytes as there is room for where the text goes.
class TQ_SERVICE_API CCharEdit : public CEdit {
public:
  // Limits the edit `id` of the dialog to `bytes` bytes of the process's ANSI code page, of which a
  // double-byte character takes two or is not taken; 0 is no limit. Without such an edit nothing
  // happens.
  CCharEdit(const CWnd& dialog, int id, int bytes);

  // The text without blanks at its ends.
  CString GetInput() const;
};

static_assert(sizeof(CTQIconButton) == sizeof(CButton) && sizeof(CCharEdit) == sizeof(CEdit));
static_assert(sizeof(CTQToolTip) == sizeof(void*));
