// Characters of XML text, one at a time: how many bytes, and whether they are allowed. Internal.
#pragma once

#include <cstddef>

namespace tq {

// Bytes of the UTF-8 character at `at`, a byte above 0x7F; 0 when it is none (too long a form, a
// surrogate, beyond Unicode, cut off by `end`) or one that XML excludes (U+FFFE, U+FFFF).
std::size_t Utf8CharLength(const char* at, const char* end);

// Decodes a valid UTF-8 character at `at` and moves `at` behind it.
char32_t TakeUtf8Char(const char*& at);

// Writes a character from U+10000 on as its four bytes; returns the place behind them.
char* PutUtf8Char(char32_t character, char* bytes);

// Bytes, 1 or 2, of the character of an ANSI code page at `at`, a byte above 0x7F; 0 when the bytes
// cannot be one. This is the code page's structure, without regard to which characters are
// assigned: users define their own.
std::size_t AnsiCharLength(unsigned codePage, const char* at, const char* end);

} // namespace tq
