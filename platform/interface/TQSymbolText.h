// Text of a terminal that works in UTF-8, and paths of the library that it opens itself.
//
// Conventions that hold for all of this header
//  1. The library's text is in the process's ANSI code page: on Windows GetACP(), elsewhere Big5
//     (950) while the terminal runs in Traditional Chinese and GB2312 (936) while it does not. A
//     terminal in UTF-8 calls these functions where a text goes in or comes out.
//  2. A null text counts as an empty one. Results are the caller's.
//  3. Any thread, as long as nobody changes the interface language meanwhile. Nothing throws;
//     without memory for the result the process is stopped, as by CString itself.
#pragma once

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

// The text in the process's code page. A character that the code page lacks becomes "?", never one
// that looks similar; characters of the private use area count as lacking. Bytes that are no UTF-8
// (overlong forms, surrogates, characters cut off, U+FFFE and U+FFFF too) become "?" each.
//
// In the terminal's source, whose texts are UTF-8: manager.AdjustFileName(TQFromUtf8("自選")).
TQSYMBOL_API CString TQFromUtf8(const char* utf8) noexcept;

// The UTF-8 of a text in the process's code page: what a console, a log or a toolkit in UTF-8
// shows. A byte that begins no character of the code page becomes "?", and so does a lead byte
// without a trail byte behind it. A character that is not assigned becomes "?" or, where users may
// define it themselves, one of the private use area, as the system's table says. The result is
// always valid UTF-8.
TQSYMBOL_API CString TQToUtf8(const char* ansi) noexcept;

// A path that the library hands out (GetBackSymbolListPath: a directory as the terminal gave it,
// joined with one backslash to a plain ASCII file name) in the form that the system's own functions
// open. On Windows that is the path as it is. Elsewhere that backslash alone becomes "/": the
// directory may contain others, also as second bytes of characters. In any other text the last
// backslash is taken for it when something follows, all of it ASCII and without "/".
TQSYMBOL_API CString TQSystemPath(const char* path) noexcept;
