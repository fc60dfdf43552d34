// The module that uses the library from the outside, and the log service.
#pragma once

// In the module: starts a manager on that directory and destroys it.
inline constexpr char kStartAndStop[] = "StartAndStopManager";
using StartAndStop = int (*)(const char* directory);

// In the test program, one body per system: loads the module and finds its function, null on
// failure; and unloads the module and with it the library.
StartAndStop LoadModule();
bool UnloadModule();

// The test program's own reference to the log service, taken before it loads the module.
bool LoadLogService();
bool UnloadLogService();
// Whether the log service is loaded, whoever holds it.
bool LogServiceIsThere();
