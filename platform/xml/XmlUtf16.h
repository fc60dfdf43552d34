// XML files in UTF-16. Internal.
#pragma once

#include <string>
#include <string_view>

namespace tq {

// True when the file begins with the mark of either byte order (and not with that of UTF-32).
bool IsUtf16(std::string_view file);

// Such a file without its mark, in UTF-8, which is replaced. False for half a unit at the end or a
// surrogate that is not one of a pair.
bool DecodeUtf16(std::string_view file, std::string& utf8);

} // namespace tq
