// The system-dependent parts of the test program.
#pragma once

#include "tests/support/WindowCount.h"

// The module with the test program's DIALOG resources.
void* TestModule();
// A module without any.
void* ModuleWithoutDialogs();
