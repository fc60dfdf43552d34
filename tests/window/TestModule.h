// What of the test program depends on the system.
#pragma once

#include <cstddef>

// The module that carries the test program's DIALOG resources.
void* TestModule();
// One that carries none.
void* ModuleWithoutDialogs();

// How much of what the window system gives out is in use: a number that grows with every window or
// drawing object that is not given back.
size_t WindowResources();
// By how much that number may differ without anything being lost.
size_t ResourceSlack();

// Rounds of opening and closing: a real window takes its time.
int ManyRuns();
