#include "tests/unload/Module.h"

#include <dlfcn.h>

namespace {

void* module = nullptr;
void* logService = nullptr;

} // namespace

StartAndStop LoadModule() {
  module = dlopen(TQ_UNLOAD_MODULE, RTLD_NOW | RTLD_LOCAL);
  return module == nullptr ? nullptr : reinterpret_cast<StartAndStop>(dlsym(module, kStartAndStop));
}

bool UnloadModule() {
  return dlclose(module) == 0 && dlopen(TQ_SHARED_OBJECT, RTLD_NOW | RTLD_NOLOAD) == nullptr;
}

// With global symbols, like a terminal's services.
bool LoadLogService() {
  logService = dlopen(TQ_LOG_SERVICE, RTLD_NOW | RTLD_GLOBAL);
  return logService != nullptr;
}

bool UnloadLogService() {
  return dlclose(logService) == 0;
}

bool LogServiceIsThere() {
  void* const found = dlopen(TQ_LOG_SERVICE, RTLD_NOW | RTLD_NOLOAD);
  return found != nullptr && dlclose(found) == 0;
}
