// Text between this layer and the controls, which are Unicode ones. Internal.
//
// Why Unicode controls, although the library's text would suit the ANSI functions: an ANSI window
// gets a typed double-byte character as two messages and may lose the second; the templates are in
// the terminal's language, which may differ from that of the code page; and the common controls use
// Unicode internally, so text is converted by the system's tables anyway, here in one place.
#pragma once

#include <string>

#include "platform/framework/CString.h"

namespace tq {

// By the process's ANSI code page. Null is an empty text.
std::wstring ToWide(const char* text);
// A character that the code page lacks becomes "?", never one that looks similar.
CString FromWide(const wchar_t* text, size_t length);
inline CString FromWide(const std::wstring& text) {
  return FromWide(text.data(), text.size());
}

} // namespace tq
