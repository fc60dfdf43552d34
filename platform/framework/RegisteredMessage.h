// Message numbers that libraries which know nothing of each other agree on by a name.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

// The number of the message with that name: the same for the same name, whoever asks, another one
// for any other name, 0xC000 to 0xFFFF. The case of ASCII letters is ignored. A number lasts as
// long as the process. 0 for an empty or null name, and when no number is left. For the thread on
// which the terminal's windows are, and while a library is loaded.
//
// On Windows numbers hold for all programs of the session, elsewhere for all modules of the
// process. They lie above those that CWnd::Post and Send take.
TQFRAMEWORK_API unsigned RegisterMessage(const char* name);

} // namespace tq
