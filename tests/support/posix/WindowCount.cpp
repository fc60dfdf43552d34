#include "tests/support/WindowCount.h"

#include <cstdlib>
#include <string_view>

#include "platform/headless/user/UserInput.h"
#include "tests/support/LanguageTurn.h"

namespace {

// Whether windows are on a screen, which takes its time.
bool IsOnScreen() {
  const char* const said = std::getenv("TQSYMBOL_WINDOWS");
  return said != nullptr && std::string_view(said) == "screen";
}

} // namespace

int ManyRuns() {
  return IsOnScreen() ? 500 : 10000;
}

bool TakesCase(size_t number) {
  return !IsOnScreen() || IsThisLanguagesTurn(number);
}

int RandomActions(size_t walk) {
  const int all = IsOnScreen() ? 2000 : 100000;
  return IsThisLanguagesTurn(walk) ? all : all / 10;
}

int ManyFailures() {
  return !IsOnScreen() && IsTraditionChinese() != 0 ? 1000 : 30;
}

size_t ResourceSlack() {
  return 0;
}

size_t WindowResources() {
  return tq::headless::WindowCount();
}
