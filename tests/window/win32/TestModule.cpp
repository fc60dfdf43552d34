#include "tests/window/TestModule.h"

#include <windows.h>

void* TestModule() {
  return ::GetModuleHandleW(nullptr);
}

void* ModuleWithoutDialogs() {
  return ::GetModuleHandleW(L"tqFramework.dll");
}
