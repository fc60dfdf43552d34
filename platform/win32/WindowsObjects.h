// Counts of system objects that the library has opened and not yet closed, kept by the owning
// classes of this folder, so that tests can detect leaks. Windows counts only some kinds, and not
// on every system. Counting costs one addition.
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
