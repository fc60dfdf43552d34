// Message numbers on which libraries that do not know each other agree by name.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

// The number of the message with that name, 0xC000 to 0xFFFF: the same for every caller, different
// for every other name. The case of ASCII letters is ignored. A number is valid as long as the
// process lives. 0 for an empty or null name, and when no number is left. On the thread of the
// terminal's windows, or while a library is loaded.
//
// On Windows numbers hold for all programs of the session, elsewhere for all modules of the
// process. They lie above those that CWnd::Post and Send take.
TQFRAMEWORK_API unsigned RegisterMessage(const char* name);

} // namespace tq
