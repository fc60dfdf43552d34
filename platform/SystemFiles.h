// The operating system's file access, behind FileAccess.h.
#pragma once

#include "platform/FileAccess.h"

namespace tq {

// One object for the whole process, never destroyed.
FileAccess& SystemFiles();

} // namespace tq
