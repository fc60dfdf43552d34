#include "platform/Text.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace {

std::vector<int> Numbers(std::string_view text) {
  std::vector<int> numbers;
  tq::ForEachNumber(text, [&](int position, int number) {
    EXPECT_EQ(position, static_cast<int>(numbers.size()));
    numbers.push_back(number);
  });
  return numbers;
}

TEST(LeadingInt, ReadsTheNumberAtTheStart) {
  const struct {
    const char* text;
    int number;
  } cases[] = {
      {"", 0},    {"0", 0},   {"12", 12},  {"12ab", 12}, {"ab12", 0}, {" \t\n\v\f\r7", 7},
      {"+7", 7},  {"-7", -7}, {"--7", 0},  {"+-7", 0},   {"- 7", 0},  {"-", 0},
      {"007", 7}, {"3.9", 3}, {"0x10", 0},
  };
  for (const auto& each : cases)
    EXPECT_EQ(tq::LeadingInt(each.text), each.number) << each.text;
}

TEST(LeadingInt, TakesTheNearestIntOfANumberThatIsTooLong) {
  EXPECT_EQ(tq::LeadingInt("2147483647"), INT_MAX);
  EXPECT_EQ(tq::LeadingInt("2147483648"), INT_MAX);
  EXPECT_EQ(tq::LeadingInt("-2147483648"), INT_MIN);
  EXPECT_EQ(tq::LeadingInt("-2147483649"), INT_MIN);
  EXPECT_EQ(tq::LeadingInt("99999999999999999999999999999999999999"), INT_MAX);
  EXPECT_EQ(tq::LeadingInt("-99999999999999999999999999999999999999"), INT_MIN);
}

TEST(LeadingInt, SplitsAtEachComma) {
  EXPECT_EQ(Numbers(""), (std::vector<int>{}));
  EXPECT_EQ(Numbers("5"), (std::vector<int>{5}));
  EXPECT_EQ(Numbers("0,3,128,abc,7"), (std::vector<int>{0, 3, 128, 0, 7}));
  EXPECT_EQ(Numbers(",5,,6,"), (std::vector<int>{0, 5, 0, 6, 0}));
}

TEST(EqualsNoCase, ComparesByWholeCharacters) {
  EXPECT_TRUE(tq::EqualsNoCase("", ""));
  EXPECT_TRUE(tq::EqualsNoCase("tW", "Tw"));
  EXPECT_FALSE(tq::EqualsNoCase("TW", "TWO"));
  EXPECT_TRUE(tq::EqualsNoCase("\xa4\x61q", "\xa4\x61Q"));
  EXPECT_FALSE(tq::EqualsNoCase("\xa4\x61", "\xa4\x41"));
}

} // namespace
