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
// Of many cases that no language changes, whether this language's run takes the one with that
// number: it takes all of them, or every second one where windows are real, and the other language
// the others.
bool TakesCase(size_t number);
// Random actions of a user: all of them in the language whose turn the walk with that number is,
// and a part in the other.
int RandomActions(size_t walk);
// Of the calls of a session how many are made to fail.
int ManyFailures();
