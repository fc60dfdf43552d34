#include "tests/support/WindowCount.h"

#include <cstdlib>
#include <string_view>

#include "platform/headless/user/UserInput.h"
#include "platform/services/tqCommon.h"

namespace {

// Whether windows are on a screen, which takes its time.
bool IsOnScreen() {
  const char* const said = std::getenv("TQSYMBOL_WINDOWS");
  return said != nullptr && std::string_view(said) == "screen";
}

int InEitherLanguage(int all, int part) {
  return IsTraditionChinese() != 0 ? all : part;
}

} // namespace

int ManyRuns() {
  return IsOnScreen() ? 500 : 10000;
}

bool TakesCase(size_t number) {
  return !IsOnScreen() || (number % 2 == 0) == (IsTraditionChinese() != 0);
}

int RandomActions() {
  return IsOnScreen() ? InEitherLanguage(2000, 200) : InEitherLanguage(100000, 10000);
}

int ManyFailures() {
  return IsOnScreen() ? 30 : InEitherLanguage(1000, 30);
}

size_t ResourceSlack() {
  return 0;
}

size_t WindowResources() {
  return tq::headless::WindowCount();
}
