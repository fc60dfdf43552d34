#include "terminal/demo/Steps.h"

#include <cstdio>

#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"
#include "terminal/demo/Table.h"

namespace demo {
namespace {

constexpr int kStepCells = 58;
constexpr int kLineCells = 100;

} // namespace

Steps::Steps() : seen_(standin::Notifications().size()) {}

void Steps::Step(const std::string& what, int result) {
  const std::string line = "  " + Padded(what, kStepCells) + " -> " + std::to_string(result);
  const std::string told = Told();
  const bool fits = CellWidth(line) + CellWidth(told) <= kLineCells;
  std::printf("%s%s%s\n", line.c_str(), fits ? "" : "\n ", told.c_str());
  if (result == 0 && error_.empty())
    error_ = what + " was refused";
}

void Steps::Note(const std::string& text) {
  std::printf("  %s\n", text.c_str());
}

// A notification that repeats, once for each changed list, is shown once with its number.
std::string Steps::Told() {
  std::string told;
  std::string last;
  int times = 0;
  const auto add = [&] {
    if (times > 0)
      told += (told.empty() ? "   told: " : ", ") + last +
              (times > 1 ? " x" + std::to_string(times) : "");
  };
  for (; seen_ < standin::Notifications().size(); ++seen_) {
    const standin::Notification& notification = standin::Notifications()[seen_];
    const std::string text = std::to_string(notification.code) + " \"" + notification.reason + "\"";
    if (text != last) {
      add();
      last = text;
      times = 0;
    }
    ++times;
  }
  add();
  return told;
}

CString InLanguage(const char* traditional, const char* simplified) {
  return standin::ToAnsi(IsTraditionChinese() != 0 ? traditional : simplified).c_str();
}

} // namespace demo
