#include "terminal/tqUI/WindowFront.h"

void standin::BringToFront(WindowHandle) {}
