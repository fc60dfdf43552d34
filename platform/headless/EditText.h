// Typing into an edit in memory. Internal.
#pragma once

#include "platform/headless/Windows.h"

namespace tq::headless {

// One character (one or two bytes) in the place of what is selected; "\b" takes back the one before
// the caret. True when the text is another one now.
bool TypeCharacter(Control& edit, const CString& character);
// The Delete key: what is selected, or the character behind the caret. True as above.
bool DeleteForward(Control& edit);
// The Home and End keys; `selects` what the caret passes over.
void PutCaret(Control& edit, Key key, bool selects);

} // namespace tq::headless
