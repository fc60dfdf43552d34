#include "platform/LibraryEnd.h"

#include <windows.h>

namespace {

bool processIsEnding = false;

} // namespace

// Called in front of the destructors of the library's static objects. `whole` is null when the
// library alone goes.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, LPVOID whole) {
  if (reason == DLL_PROCESS_DETACH)
    processIsEnding = whole != nullptr;
  return TRUE;
}

namespace tq {

bool ProcessIsEnding() {
  return processIsEnding;
}

} // namespace tq
