#include "tests/unload/Module.h"

#include <windows.h>

namespace {

HMODULE module = nullptr;

} // namespace

StartAndStop LoadModule() {
  module = ::LoadLibraryA(TQ_UNLOAD_MODULE);
  if (module == nullptr)
    return nullptr;
  return reinterpret_cast<StartAndStop>(
      reinterpret_cast<void*>(::GetProcAddress(module, kStartAndStop)));
}

bool UnloadModule() {
  return ::FreeLibrary(module) != 0 && ::GetModuleHandleA("tqSymbol.dll") == nullptr;
}
