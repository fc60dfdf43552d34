// Text between this layer and the controls, which are Unicode ones. Internal.
//
// Why Unicode and not the ANSI functions that the rest of the library's text would fit: an ANSI
// window gets a double-byte character that is typed as two messages and may lose the second; the
// templates are in the terminal's language, which need not be the one of the code page; and the
// common controls are Unicode inside, so text goes through the system's tables in any case, here in
// one place.
#pragma once

#include <string>

#include "platform/framework/CString.h"

namespace tq {

// By the process's ANSI code page. Null is an empty text.
std::wstring ToWide(const char* text);
// A character that the code page lacks is "?"; none is replaced by one that only looks like it.
CString FromWide(const wchar_t* text, size_t length);
inline CString FromWide(const std::wstring& text) {
  return FromWide(text.data(), text.size());
}

} // namespace tq
