// The module that uses the library, from the outside, and the log service beside it.
#pragma once

// Of the module: has a manager start on that directory, and destroys it.
inline constexpr char kStartAndStop[] = "StartAndStopManager";
using StartAndStop = int (*)(const char* directory);

// Of the test program, one body for each system: loads the module and finds its function, null when
// that fails; and lets the module go, and with it the library.
StartAndStop LoadModule();
bool UnloadModule();

// The test program's own hold on the log service, which it must have before it loads the module.
bool LoadLogService();
bool UnloadLogService();
// Whether the log service is there, whoever holds it.
bool LogServiceIsThere();
