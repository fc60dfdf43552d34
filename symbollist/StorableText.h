// What a list may keep as its name, identifier or id string, and what any file of the library's
// may hold: text that comes back when the file is read.
//
// The list file is written as it stands, so a half character or a control byte in one name would
// make the next load refuse the whole file, and with it every list of the user. Such bytes are
// taken out where text enters a list, in one place for all ways that lead there. An apostrophe, "&"
// and "<" are not among them: they are characters, and names are screened for them where users
// enter them.
#pragma once

#include <string>
#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

// Whether the list file can hold every byte of `text`: whole characters of the process's code page,
// and of the control bytes only tab, line feed and carriage return.
bool IsStorable(const CString& text);

// `text` without the bytes that the file cannot hold, with a line in the log when there were some.
// Shared, not copied, when there were none.
CString StorableText(const CString& text);

// The same put behind `document`, without a line in the log: for files that are written over and
// over.
void AppendStorable(std::string_view text, std::string& document);

// Whether a list given this identifier would bear it unchanged: all of it can be stored, and it is
// not longer than the 36 bytes that are kept. An identifier that came out as another one would make
// two lists of one.
bool IsKeptWhole(const CString& id);

} // namespace tq
