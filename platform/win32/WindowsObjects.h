// What the library has opened of the system and not closed yet, counted where the owning classes of
// this folder open and close it, so that tests can see that nothing stays behind. Windows itself
// counts some kinds only, and not on every system that runs these programs. A count costs as much
// as an addition.
#pragma once

#include "platform/framework/FrameworkApi.h"

namespace tq {

enum class SystemObject {
  File,
  Com,       // an initialisation of COM
  Interface, // a reference to an object of COM
  Text,      // a string of COM
  Window,    // of a dialog, or of its tips
  Font,
  DeviceContext,
  Clipboard,
  Memory, // a lock on global memory
};
inline constexpr int kSystemObjects = 9;

// Any thread.
TQFRAMEWORK_API void NoteOpened(SystemObject kind);
TQFRAMEWORK_API void NoteClosed(SystemObject kind);

struct SystemObjectCount {
  long opened;
  long closed;
};
// Since the start of the process.
TQFRAMEWORK_API SystemObjectCount CountOf(SystemObject kind);

} // namespace tq
