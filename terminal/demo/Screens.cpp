#include "terminal/demo/Screens.h"

#include <cstdio>
#include <sstream>
#include <string>

#include "terminal/demo/Table.h"

namespace demo {
namespace {

constexpr int kRowsShown = 5;    // of each list
constexpr int kScreenCells = 92; // behind the indent

bool IsOfList(const std::string& line) {
  return line.starts_with(" ") || line.starts_with("list") || line.starts_with("table");
}

// Controls that stand behind each other share lines.
class ControlLine {
public:
  void Add(const std::string& control) {
    if (!line_.empty() && CellWidth(line_ + "; " + control) > kScreenCells)
      Print();
    line_ += (line_.empty() ? "" : "; ") + control;
  }
  void Print() {
    if (!line_.empty())
      std::printf("      %s\n", line_.c_str());
    line_.clear();
  }

private:
  std::string line_;
};

std::string WithoutBlanksBehind(const std::string& line) {
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

} // namespace

void PrintScreen(const standin::User& user) {
  std::istringstream screen(user.Screen(kRowsShown));
  ControlLine controls;
  for (std::string text; std::getline(screen, text);) {
    const std::string line = WithoutBlanksBehind(text);
    if (line.starts_with("=")) {
      std::printf("    %s\n", line.c_str());
    } else if (IsOfList(line)) {
      controls.Print();
      std::printf("      %s\n", line.c_str());
    } else if (!line.empty()) { // which a row may be
      controls.Add(line);
    }
  }
  controls.Print();
}

} // namespace demo
