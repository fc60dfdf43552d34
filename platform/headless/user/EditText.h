// Typing into an edit in memory. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// Types one character (one or two bytes) over the selection; "\b" deletes the character before the
// caret. True when the text changed.
bool TypeCharacter(Control& edit, const CString& character);
// The Delete key: deletes the selection, or the character behind the caret. True as above.
bool DeleteForward(Control& edit);
// The Home and End keys; with `selects` the caret selects what it passes.
void PutCaret(Control& edit, WindowKey key, bool selects);

} // namespace tq::headless
