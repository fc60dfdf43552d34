#include "bench/Report.h"

#include <cstdio>

namespace bench {
namespace {

constexpr int kWhatWidth = 46;

std::string TimeText(double seconds) {
  struct Unit {
    double seconds;
    const char* name;
  };
  constexpr Unit kUnits[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
  const Unit* unit = kUnits;
  while (seconds < unit->seconds && unit->seconds > 1e-9)
    ++unit;
  char text[32];
  std::snprintf(text, sizeof(text), "%.1f %s", seconds / unit->seconds, unit->name);
  return text;
}

std::string GoalText(double goal) {
  char text[32] = "-";
  if (goal != kNoGoal)
    std::snprintf(text, sizeof(text), goal < 10 ? "%.2f" : "%.0f", goal);
  return text;
}

} // namespace

const char* Report::Verdict(double value, double goal) {
  if (goal == kNoGoal)
    return "";
  ++figures_;
  if (value <= goal)
    return "reached";
  ++missed_;
  return "MISSED";
}

void Report::Section(const std::string& title) {
  std::printf("\n%s\n  %-*s %10s %10s %7s %15s %4s %9s\n", title.c_str(), kWhatWidth, "", "library",
              "peer", "ratio", "min .. max", "n", "to reach");
}

void Report::Ratio(const std::string& what, const Figure& figure, double goal,
                   std::size_t operations) {
  const auto count = static_cast<double>(operations);
  char spread[32];
  std::snprintf(spread, sizeof(spread), "%.2f .. %.2f", figure.least, figure.most);
  std::printf("  %-*s %10s %10s %7.2f %15s %4zu %9s  %s\n", kWhatWidth, what.c_str(),
              TimeText(figure.library / count).c_str(), TimeText(figure.peer / count).c_str(),
              figure.ratio, spread, figure.repetitions, GoalText(goal).c_str(),
              Verdict(figure.ratio, goal));
  std::fflush(stdout);
}

void Report::Number(const std::string& what, double value, const std::string& unit, double goal) {
  const std::string named = what + ", " + unit;
  std::printf("  %-*s %10.1f %10s %7s %15s %4d %9s  %s\n", kWhatWidth, named.c_str(), value, "", "",
              "", 1, GoalText(goal).c_str(), Verdict(value, goal));
  std::fflush(stdout);
}

void Report::GrowthSection(const std::string& title) {
  std::printf("\n%s\n  %-*s %21s %21s %21s %7s\n", title.c_str(), kWhatWidth, "", "n, time",
              "n, time", "n, time", "growth");
}

void Report::Growth(const std::string& what, const std::vector<std::size_t>& sizes,
                    const std::vector<double>& each) {
  std::printf("  %-*s", kWhatWidth, what.c_str());
  for (std::size_t i = 0; i < sizes.size(); ++i)
    std::printf(" %10zu %10s", sizes[i], TimeText(each[i]).c_str());
  std::printf(" %7.2f\n", each.back() / each.front());
  std::fflush(stdout);
}

void Report::Wrong(const std::string& what) {
  ++wrong_;
  std::printf("  %-*s WRONG ANSWER\n", kWhatWidth, what.c_str());
}

int Report::Finish() const {
  std::printf("\n%zu of %zu figures reach their goal.\n", figures_ - missed_, figures_);
  if (wrong_ > 0)
    std::printf("%zu comparisons gave a wrong answer.\n", wrong_);
  return wrong_ == 0 ? 0 : 1;
}

} // namespace bench
