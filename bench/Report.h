// The table that the program prints: one row for each figure, with what it is to reach beside it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/Figure.h"

namespace bench {

// Instead of a goal: the figure is shown and not judged.
inline constexpr double kNoGoal = -1;

class Report {
public:
  // Opens a part of the table.
  void Section(const std::string& title);
  // Library over peer, at most `goal`. `operations` is how many a repetition did, for the times.
  void Ratio(const std::string& what, const Figure& figure, double goal,
             std::size_t operations = 1);
  // A plain number, at most `goal`.
  void Number(const std::string& what, double value, const std::string& unit, double goal);
  // Opens a part of the table with rows of Growth.
  void GrowthSection(const std::string& title);
  // Seconds of each item at three sizes, and how many times those of the first size the last one
  // has: 1 when time grows as the size does.
  void Growth(const std::string& what, const std::vector<std::size_t>& sizes,
              const std::vector<double>& each);
  // A wrong answer: its figures say nothing. The program ends with a failure.
  void Wrong(const std::string& what);

  // Prints how many figures reached their goal. Returns the program's exit status.
  int Finish() const;

private:
  const char* Verdict(double value, double goal);

  std::size_t figures_ = 0;
  std::size_t missed_ = 0;
  std::size_t wrong_ = 0;
};

} // namespace bench
