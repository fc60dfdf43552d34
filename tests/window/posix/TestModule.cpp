#include "tests/window/TestModule.h"

#include "platform/headless/UserInput.h"

void* TestModule() {
  return nullptr;
}

void* ModuleWithoutDialogs() {
  return nullptr;
}

int ManyRuns() {
  return 10000;
}

size_t ResourceSlack() {
  return 0;
}

size_t WindowResources() {
  return tq::headless::WindowCount();
}
