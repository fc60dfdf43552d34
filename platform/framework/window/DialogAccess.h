// A back end's access to the handlers and the state of a dialog. Internal.
#pragma once

#include "platform/framework/window/CDialog.h"

namespace tq {

struct DialogAccess {
  static unsigned TemplateId(const CDialog& dialog) { return dialog.templateId_; }
  static WindowHandle Parent(const CDialog& dialog) { return dialog.parent_; }

  // The start and the end of a run. The code is that of the run so far.
  static void Begin(CDialog& dialog, WindowHandle handle);
  static int Finish(CDialog& dialog);
  static void SetEnd(CDialog& dialog, int code);
  static bool HasEnded(const CDialog& dialog) { return dialog.ended_; }

  static bool Init(CDialog& dialog) { return dialog.OnInitDialog(); }
  // None of the following is delivered to a dialog that has ended.
  // OnOK and OnCancel for buttons 1 and 2, else OnCommand.
  static TQFRAMEWORK_API void Command(CDialog& dialog, int id, WindowEvent event);
  static void Notify(CDialog& dialog, int id, const WindowListNotice& notice);
  static void Timer(CDialog& dialog, unsigned id);
  static void Posted(CDialog& dialog, unsigned code, intptr_t first, intptr_t second);
  // True: the dialog has used the key.
  static bool KeyDown(CDialog& dialog, int id, WindowKey key, WindowHeldKeys held);

  static intptr_t Message(CDialog& dialog, unsigned code, intptr_t first, intptr_t second) {
    return dialog.OnMessage(code, first, second);
  }
  static TQFRAMEWORK_API CString CellText(CDialog& dialog, int id, int row, int column);
  static TQFRAMEWORK_API WindowItemLook Look(CDialog& dialog, int id, int row);

  // Tells the modal handler, if there is one and the dialog has not ended.
  static void TellModalHandler(CDialog& dialog);
};

// The back end's: the whole run, from the template to the end code.
int RunModal(CDialog& dialog);
// The back end's: gets the run's loop to look at the end code.
void WakeModal(CDialog& dialog);

enum class Serve {
  Messages,
  Timers
}; // only what was posted or done, or the timers that are due as well

// Delivers what has waited longest, to whichever dialog of this layer. False when nothing is there
// to deliver: with Messages at once; with Timers, without windows, when no timer is set either,
// while on Windows it waits. The loop of every run; tests use it to have the consequences of an
// action arrive.
TQFRAMEWORK_API bool ServeMessage(Serve what);

} // namespace tq
