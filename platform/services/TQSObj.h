// TQSObj: the extra values that the terminal keeps for the logged-in user.
#pragma once

#include "platform/Compiler.h"

// The size of the buffer that the library offers, with the NUL.
enum { TQSExtraValueSize = 1024 };

extern "C" {

// Writes the value of `key` in `section` into `buffer`: at most `size` bytes with the NUL, cut at a
// whole character. Returns non-zero on success, 0 when there is no such value, an argument is null
// or `size` is not positive; `buffer` is then left alone. The one value in use is ("",
// "FullMenuKey"), whose presence tells that the user's menu is the full one. On the terminal's
// user-interface thread; it may be called again from within itself when it handles the thread's
// messages. The text is in the process's ANSI code page. Nothing throws.
TQ_SERVICE_API int TQSGetUserExtraValue(const char* section, const char* key, char* buffer,
                                        int size);
}
