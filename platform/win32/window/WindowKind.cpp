#include "platform/framework/window/WindowKind.h"

#include "platform/win32/window/WindowRun.h"

namespace tq {

// There is no choice here.
void ChooseWindows(WindowKind) {}

bool WindowsOnScreen() {
  return !Runs().empty();
}

const char* WindowsMissing() {
  return "";
}

} // namespace tq
