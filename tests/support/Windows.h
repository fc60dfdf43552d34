// How the windows of a test program are to appear.
#pragma once

// Before the first test. Where they have a screen, what the system makes once for a process and
// keeps is made, so that tests can count what is left open; and where TQ_TEST_HOST names a library
// with an application object of its own, that is the host's from now on.
void PrepareWindows();
