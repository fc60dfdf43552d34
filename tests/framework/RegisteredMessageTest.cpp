// Registered message numbers.
#include "platform/framework/window/RegisteredMessage.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(RegisteredMessage, TheSameNameHasTheSameNumber) {
  EXPECT_EQ(tq::RegisterMessage("TQTEST_Same"), tq::RegisterMessage("TQTEST_Same"));
}

TEST(RegisteredMessage, TheNameCountsAndNotWhereItIsKept) {
  const std::string copy = "TQTEST_Copy";
  EXPECT_EQ(tq::RegisterMessage("TQTEST_Copy"), tq::RegisterMessage(copy.c_str()));
}

TEST(RegisteredMessage, OtherNamesHaveOtherNumbers) {
  std::set<unsigned> numbers;
  for (int i = 0; i < 100; ++i)
    numbers.insert(tq::RegisterMessage(("TQTEST_Other" + std::to_string(i)).c_str()));
  EXPECT_EQ(numbers.size(), 100u);
}

TEST(RegisteredMessage, NumbersAreThoseOfRegisteredMessages) {
  const unsigned number = tq::RegisterMessage("TQTEST_Range");
  EXPECT_GE(number, 0xC000u);
  EXPECT_LE(number, 0xFFFFu);
}

TEST(RegisteredMessage, LetterCaseIsIgnored) {
  EXPECT_EQ(tq::RegisterMessage("TQTEST_Case"), tq::RegisterMessage("tqtest_CASE"));
}

TEST(RegisteredMessage, TheBeginningOfANameIsAnotherName) {
  EXPECT_NE(tq::RegisterMessage("TQTEST_List"), tq::RegisterMessage("TQTEST_ListGroup"));
}

TEST(RegisteredMessage, NoNameHasNoNumber) {
  EXPECT_EQ(tq::RegisterMessage(""), 0u);
  EXPECT_EQ(tq::RegisterMessage(nullptr), 0u);
}

} // namespace
