#include <windows.h>

#include "platform/Compiler.h"
#include "terminal/StandIn.h"

namespace {

constexpr UINT kLooked = 10;
bool looks = false;

} // namespace

extern "C" TQ_EXPORT void LookAtTheEnd() {
  looks = true;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, LPVOID /*whole*/) {
  if (reason == DLL_PROCESS_DETACH && looks)
    ::TerminateProcess(::GetCurrentProcess(), kLooked + static_cast<UINT>(standin::LoggersAlive()));
  return TRUE;
}
