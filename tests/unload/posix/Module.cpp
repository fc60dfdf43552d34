#include "tests/unload/Module.h"

#include <dlfcn.h>

namespace {

void* module = nullptr;

} // namespace

StartAndStop LoadModule() {
  module = dlopen(TQ_UNLOAD_MODULE, RTLD_NOW | RTLD_LOCAL);
  return module == nullptr ? nullptr : reinterpret_cast<StartAndStop>(dlsym(module, kStartAndStop));
}

bool UnloadModule() {
  return dlclose(module) == 0 && dlopen("libtqSymbol.so.1", RTLD_NOW | RTLD_NOLOAD) == nullptr;
}
