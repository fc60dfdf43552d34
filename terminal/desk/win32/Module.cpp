#include "terminal/desk/Resources.h"

#include <windows.h>

void* desk::OwnModule() {
  return ::GetModuleHandleW(nullptr); // the program into which the window is linked
}
