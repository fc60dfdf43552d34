#include "terminal/tqUI/WindowFront.h"

#include <windows.h>

// Where another program has the foreground, the system lets the window's button flash instead.
void standin::BringToFront(WindowHandle window) {
  ::ShowWindow(window, SW_SHOW);
  ::BringWindowToTop(window);
  ::SetForegroundWindow(window);
}
