// Replacing text where the result has a bound.
#pragma once

#include <cstddef>

#include "platform/framework/CString.h"

namespace tq {

// Puts `with` in the place of each `what` in `text`, as CString::Replace does. False, and `text` as
// it was, when the result would be longer than `limit` bytes.
bool ReplaceWithin(CString& text, const CString& what, const CString& with, std::size_t limit);

} // namespace tq
