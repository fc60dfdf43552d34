// The calendar that contract codes are read by.
#include "platform/Clock.h"

#include <ctime>

#include <gtest/gtest.h>

namespace {

int YearOfTheCLibrary() {
  const std::time_t now = std::time(nullptr);
  return std::localtime(&now)->tm_year + 1900;
}

int Year2029() {
  return 2029;
}

TEST(Clock, TellsTheYearOfTheLocalCalendar) {
  // The year may turn between the two questions.
  const int before = YearOfTheCLibrary();
  const int year = tq::CurrentLocalYear();
  const int after = YearOfTheCLibrary();
  EXPECT_TRUE(year == before || year == after) << year;
}

TEST(Clock, LivesInAnotherYearUntilTheSystemsSourceIsPutBack) {
  const tq::ClockSource systems = tq::SetClock(&Year2029);
  EXPECT_EQ(tq::CurrentLocalYear(), 2029);
  EXPECT_EQ(tq::SetClock(nullptr), &Year2029);
  EXPECT_NE(tq::CurrentLocalYear(), 0);
  EXPECT_EQ(tq::SetClock(systems), systems);
}

} // namespace
