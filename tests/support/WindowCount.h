// How many objects of the window system are in use, and how often a test does what it repeats: real
// windows are slower.
#pragma once

#include <cstddef>

// Grows with every window or drawing object that is not released.
size_t WindowResources();
// How much that number may vary without a leak.
size_t ResourceSlack();

// Rounds of opening and closing.
int ManyRuns();
// Random actions of a user: all of them in one language, and a part in the other.
int RandomActions();
// Of the calls of a session how many are made to fail.
int ManyFailures();
