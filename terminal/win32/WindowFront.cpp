#include "terminal/tqUI/WindowFront.h"

#include <windows.h>

// When another program is in the foreground, the system flashes the window's button instead.
void standin::BringToFront(WindowHandle window) {
  ::ShowWindow(window, SW_SHOW);
  ::BringWindowToTop(window);
  ::SetForegroundWindow(window);
}
