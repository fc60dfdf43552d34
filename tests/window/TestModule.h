// The system-dependent parts of the test program.
#pragma once

#include <cstddef>

// The module with the test program's DIALOG resources.
void* TestModule();
// A module without any.
void* ModuleWithoutDialogs();

// The number of window system objects in use, which grows with every window or drawing object that
// is not released.
size_t WindowResources();
// How much that number may vary without a leak.
size_t ResourceSlack();

// Rounds of opening and closing; real windows take longer.
int ManyRuns();
