// tqCommon: what the terminal's libraries share. Interface language, message boxes, modal runs.
// All of it runs on the terminal's user-interface thread.
#pragma once

class CDialog;

extern "C" {

// Non-zero when the terminal runs in Traditional Chinese (Big5), 0 for Simplified Chinese (GB2312).
// It cannot fail and costs next to nothing, so it is asked afresh wherever the language matters.
int IsTraditionChinese(void);

// Shows the string-table entry `id` of the module `resources` (on Windows its HINSTANCE; null is
// the terminal's own) with the buttons of `type` and returns the button pressed. `type` takes the
// system's MB_ values (0 OK only, 3 Yes/No/Cancel, 4 Yes/No), the result its ID values (1 OK, 2
// Cancel, 6 Yes, 7 No); 0 means that no box could be shown.
int tqShowDllMessage(void* resources, unsigned id, unsigned type);

// The same for a text of the caller's, in the process's ANSI code page. Not a format.
int tqShowMessageStr(const char* text, unsigned type);

// Runs a dialog modally as the terminal wants it done, called as (dialog, 0, 1, 0): the numbers are
// the terminal's and are passed as they are. Returns the dialog's end code: 1 for OK, -1 when the
// dialog could not be created.
int tqDoModal(CDialog* dialog, int, int, int);
}
