#include "tests/window/TestModule.h"

void* TestModule() {
  return nullptr;
}

void* ModuleWithoutDialogs() {
  return nullptr;
}
