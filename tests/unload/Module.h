// The module that uses the library, from the outside.
#pragma once

// Of the module: has a manager start on that directory, and destroys it.
inline constexpr char kStartAndStop[] = "StartAndStopManager";
using StartAndStop = int (*)(const char* directory);

// Of the test program, one body for each system: loads the module and finds its function, null when
// that fails; and lets the module go, and with it the library.
StartAndStop LoadModule();
bool UnloadModule();
