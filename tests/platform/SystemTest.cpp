#include "platform/System.h"

#include <gtest/gtest.h>

#include <ctime>
#include <set>
#include <string>

namespace {

int DayOfTheCLibrary() {
  const std::time_t now = std::time(nullptr);
  const std::tm& local = *std::localtime(&now);
  return (local.tm_year + 1900) * 10000 + (local.tm_mon + 1) * 100 + local.tm_mday;
}

int LeapDay() {
  return 20280229;
}

TEST(Clock, TellsTheDayOfTheLocalCalendar) {
  // The day may end between the two questions.
  const int before = DayOfTheCLibrary();
  const int day = tq::CurrentLocalDay();
  const int after = DayOfTheCLibrary();
  EXPECT_TRUE(day == before || day == after) << day;
}

TEST(Clock, ASourceCountsUntilTheSystemsIsRestored) {
  EXPECT_EQ(tq::SetClock(&LeapDay), &tq::SystemLocalDay);
  EXPECT_EQ(tq::CurrentLocalDay(), 20280229);
  EXPECT_EQ(tq::CurrentLocalYear(), 2028);
  EXPECT_EQ(tq::SetClock(nullptr), &LeapDay);
  EXPECT_EQ(tq::SetClock(nullptr), &tq::SystemLocalDay);
}

std::string Text(const tq::Guid& guid) {
  char text[tq::kGuidTextLength + 1];
  tq::FormatGuid(guid, text);
  return text;
}

// The ids of stored lists have always been written so.
TEST(Guid, TheThirdGroupIsInLowerCaseAndTheOthersInUpper) {
  EXPECT_EQ("ABCDEF01-FEDC-abcd-EF0A-BCDEF0123456",
            Text({0xABCDEF01, 0xFEDC, 0xABCD, {0xEF, 0x0A, 0xBC, 0xDE, 0xF0, 0x12, 0x34, 0x56}}));
}

TEST(Guid, SmallFieldsKeepTheirZeros) {
  EXPECT_EQ("00000001-0002-0003-0004-000000000005", Text({1, 2, 3, {0, 4, 0, 0, 0, 0, 0, 5}}));
  EXPECT_EQ("00000000-0000-0000-0000-000000000000", Text({}));
}

TEST(Guid, NewOnesDifferAndAreRandomOfTheStandardsKind) {
  std::set<std::string> seen;
  for (int i = 0; i < 1000; ++i) {
    tq::Guid guid;
    ASSERT_TRUE(tq::NewGuid(guid));
    const std::string text = Text(guid);
    EXPECT_EQ(36U, text.size());
    EXPECT_EQ('4', text[14]) << text;
    EXPECT_NE(std::string::npos, std::string("89AB").find(text[19])) << text;
    EXPECT_TRUE(seen.insert(text).second) << text;
  }
}

bool Known(tq::Guid& guid) {
  guid.data1 = 7;
  return true;
}

bool None(tq::Guid& guid) {
  guid.data1 = 7;
  return false;
}

TEST(Guid, ATestPutsItsOwnSourceInPlaceAndTakesItBack) {
  tq::Guid guid;
  const tq::GuidSource before = tq::SetGuidSource(&Known);
  EXPECT_TRUE(tq::NewGuid(guid));
  EXPECT_EQ("00000007-0000-0000-0000-000000000000", Text(guid));
  EXPECT_EQ(&Known, tq::SetGuidSource(&None));
  EXPECT_FALSE(tq::NewGuid(guid));
  EXPECT_EQ("00000000-0000-0000-0000-000000000000", Text(guid)) << "zeroed on failure";
  EXPECT_EQ(&None, tq::SetGuidSource(nullptr));
  EXPECT_EQ(before, tq::SetGuidSource(before));
  EXPECT_TRUE(tq::NewGuid(guid));
}

} // namespace
