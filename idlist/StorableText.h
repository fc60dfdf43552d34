// Text that can be stored in the library's files and read back: the names, identifiers and id
// strings of lists.
//
// The list file is not escaped, so a half character or a control byte in one name would make the
// next load refuse the whole file, and with it every list of the user. Such bytes are removed when
// text enters a list, here and nowhere else. Apostrophe, "&" and "<" are not removed: names are
// screened for them where users enter them.
#pragma once

#include <string>
#include <string_view>

#include "platform/framework/CString.h"

namespace tq {

// Whether the list file can hold every byte of `text`: whole characters of the process's code page,
// and of the control bytes only tab, line feed and carriage return.
bool IsStorable(const CString& text);

// Whether a name, an identifier or an id can be written to the list file and read back: storable,
// and without an apostrophe, "&" and "<". The file is not escaped, and a load refuses one that
// holds them, with all its lists.
bool IsLoadable(std::string_view text);

// Whether the list file would hold the text and yet not be loaded again: it has one of these three.
bool HoldsUnloadable(std::string_view text);

// `text` without the bytes that the file cannot hold, with a line in the log when there were some,
// and the problem TQProblemLeftOut for the operation that runs.
// Without such bytes the string is shared, not copied.
CString StorableText(const CString& text);

// Appends the same to `document`, without a line in the log: for files that are rewritten often.
void AppendStorable(std::string_view text, std::string& document);

} // namespace tq
