// tqCommon: what the terminal's libraries share. Interface language, message boxes, modal runs.
// All of it runs on the terminal's user-interface thread. Nothing throws. Message boxes and dialogs
// handle the thread's messages while they are up, so each operation is called again from within
// itself.
#pragma once

#include "platform/Compiler.h"

class CDialog;

extern "C" {

// Non-zero when the terminal runs in Traditional Chinese (Big5), 0 for Simplified Chinese (GB2312).
// It cannot fail and costs next to nothing, so it is asked afresh wherever the language matters.
// The answer is the language of the texts that all services hand out: on Windows code page 950 goes
// with Traditional Chinese and 936 with Simplified Chinese, elsewhere the answer alone decides on
// the code page. It does not change while an operation of the library runs.
TQ_SERVICE_API int IsTraditionChinese(void);

// Shows the string-table entry `id` of the module `resources` (on Windows its HINSTANCE; null is
// the terminal's own) with the buttons of `type` and returns the button pressed. `type` takes the
// system's MB_ values (0 OK only, 3 Yes/No/Cancel, 4 Yes/No), the result its ID values (1 OK, 2
// Cancel, 6 Yes, 7 No); 0 means that no box could be shown. The call returns when the box is
// closed. A system whose modules carry no string tables shows what `tqSymbolString` of the library
// has under `id`.
TQ_SERVICE_API int tqShowDllMessage(void* resources, unsigned id, unsigned type);

// The same for a text of the caller's, in the process's ANSI code page. Not a format. The text is
// the caller's and is not kept.
TQ_SERVICE_API int tqShowMessageStr(const char* text, unsigned type);

// Runs a dialog modally as the terminal wants it done, called as (dialog, 0, 1, 0): the numbers are
// the terminal's and are passed as they are. The least that will do is dialog->DoModal(). Returns
// the dialog's end code: 1 for OK, -1 when the dialog could not be created or is null. The dialog
// stays the caller's.
TQ_SERVICE_API int tqDoModal(CDialog* dialog, int, int, int);
}
