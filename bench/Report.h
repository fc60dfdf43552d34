// The printed table: one row for each figure, with its goal.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/Figure.h"

namespace bench {

// In place of a goal: the figure is shown and not judged.
inline constexpr double kNoGoal = -1;

class Report {
public:
  // Begins a part of the table.
  void Section(const std::string& title);
  // Library over peer, with a goal of at most `goal`. `operations` is the number in a repetition,
  // for the times shown.
  void Ratio(const std::string& what, const Figure& figure, double goal,
             std::size_t operations = 1);
  // A plain number, with a goal of at most `goal`.
  void Number(const std::string& what, double value, const std::string& unit, double goal);
  // Begins a part of the table for rows of Growth.
  void GrowthSection(const std::string& title);
  // Seconds per item at three sizes, and the last of them over the first: 1 when the work is
  // linear.
  void Growth(const std::string& what, const std::vector<std::size_t>& sizes,
              const std::vector<double>& each);
  // Marks a wrong answer: the figures are void, and the program ends with a failure.
  void Wrong(const std::string& what);

  // Prints how many figures reach their goals. Returns the exit status of the program.
  int Finish() const;

private:
  const char* Verdict(double value, double goal);

  std::size_t figures_ = 0;
  std::size_t missed_ = 0;
  std::size_t wrong_ = 0;
};

} // namespace bench
