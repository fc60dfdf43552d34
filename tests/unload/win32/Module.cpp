#include "tests/unload/Module.h"

#include <windows.h>

namespace {

HMODULE module = nullptr;
HMODULE logService = nullptr;

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

bool LoadLogService() {
  logService = ::LoadLibraryA(TQ_LOG_SERVICE);
  return logService != nullptr;
}

bool UnloadLogService() {
  return ::FreeLibrary(logService) != 0;
}

bool LogServiceIsThere() {
  return ::GetModuleHandleA(TQ_LOG_SERVICE) != nullptr;
}
