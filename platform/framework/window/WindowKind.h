// Where dialogs appear, on systems where there is a choice. On Windows dialogs are always the
// system's own.
//
// Elsewhere a dialog's windows are kept in memory, and shown on the screen when there is one: then
// the user sees and uses them. Without a screen nobody sees a dialog; it serves its messages and
// timers, and is cancelled when nothing can happen any more. That is for servers and for tests.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

enum class WindowKind {
  Automatic, // on the screen when the process has a display and the library for it can be loaded
  Memory,    // in memory only
  Screen,    // on the screen; a dialog that finds none fails (CDialog::Failed)
};

// Chooses for all dialogs from the next outermost one on. What the environment says counts for
// more: TQSYMBOL_WINDOWS is "memory" or "screen". On the thread of the terminal's windows.
TQFRAMEWORK_API void ChooseWindows(WindowKind kind);

// Whether the dialogs that are up are on the screen; false while none is.
TQFRAMEWORK_API bool WindowsOnScreen();

// Why the latest outermost dialog had no screen, in one line of English; empty when it had one,
// when memory was chosen, and before the first. Valid until the next dialog opens. tqSymbol writes
// it to the log, at level 64, when it changes.
TQFRAMEWORK_API const char* WindowsMissing();

} // namespace tq
