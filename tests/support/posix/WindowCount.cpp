#include "tests/support/WindowCount.h"

#include "platform/headless/user/UserInput.h"
#include "platform/services/tqCommon.h"

namespace {

int InEitherLanguage(int all, int part) {
  return IsTraditionChinese() != 0 ? all : part;
}

} // namespace

int ManyRuns() {
  return 10000;
}

bool TakesCase(size_t) {
  return true;
}

int RandomActions() {
  return InEitherLanguage(100000, 10000);
}

int ManyFailures() {
  return InEitherLanguage(1000, 30);
}

size_t ResourceSlack() {
  return 0;
}

size_t WindowResources() {
  return tq::headless::WindowCount();
}
