// How this library comes to its end.
#pragma once

namespace tq {

// Whether the library ends because the process does, in a way in which no other library may be
// called any more. On Windows: the process's other threads have been stopped by then wherever they
// were, and a lock that one of them held is never given back. Never so on POSIX, where libraries
// end while the process is whole.
bool ProcessIsEnding();

} // namespace tq
