#include "tests/support/Windows.h"

void PrepareWindows() {}
