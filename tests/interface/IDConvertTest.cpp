// CIDConvert: an id and its kind in one text.
#include "symbolid/IDConvert.h"

#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace {

// "<kind>|<id>|<full id>"
std::string Parts(const CIDConvert& convert) {
  return std::to_string(convert.GetIDType()) + "|" + convert.GetID().GetString() + "|" +
         convert.GetFullID().GetString();
}

TEST(IDConvert, ComposesKindAndIdWithADot) {
  EXPECT_EQ(Parts(CIDConvert(3, "AB")), "3|AB|3.AB");
  EXPECT_EQ(Parts(CIDConvert(-12, "AB")), "-12|AB|-12.AB");
  EXPECT_EQ(Parts(CIDConvert(2147483647, "")), "2147483647||2147483647.");
  EXPECT_EQ(Parts(CIDConvert(1, "%s%n,.")), "1|%s%n,.|1.%s%n,.");
}

TEST(IDConvert, SplitsAtTheFirstComma) {
  const struct {
    const char* text;
    const char* parts;
  } cases[] = {
      {"3,AB", "3|AB|3,AB"},  {"3.AB", "0|3.AB|3.AB"},
      {",AB", "0|AB|,AB"},    {"7,A,B", "7|A,B|7,A,B"},
      {"x,AB", "0|AB|x,AB"},  {"", "0||"},
      {",", "0||,"},          {"3,", "3||3,"},
      {",,", "0|,|,,"},       {" \t+12x9,A", "12|A| \t+12x9,A"},
      {"-5,A", "-5|A|-5,A"},  {"3 4,A", "3|A|3 4,A"},
      {"- 5,A", "0|A|- 5,A"}, {"99999999999,A", "2147483647|A|99999999999,A"},
  };
  for (const auto& [text, parts] : cases)
    EXPECT_EQ(Parts(CIDConvert(text)), parts);
}

TEST(IDConvert, WhatOneConstructorComposesTheOtherDoesNotTakeApart) {
  const CIDConvert composed(3, "AB");
  EXPECT_EQ(Parts(CIDConvert(composed.GetFullID())), "0|3.AB|3.AB");
  const CIDConvert comma(3, "A,B");
  EXPECT_EQ(Parts(CIDConvert(comma.GetFullID())), "3|B|3.A,B");
}

TEST(IDConvert, DoubleByteCharactersStayWhole) {
  const char text[] = "2,\xB3\x5C\xA5\x5C,\xBB\x5C";
  EXPECT_EQ(Parts(CIDConvert(text)), std::string("2|") + (text + 2) + "|" + text);
}

TEST(IDConvert, CopiesAreWholeAndIndependent) {
  CIDConvert one(3, "AB");
  CIDConvert two(one);
  EXPECT_EQ(Parts(two), "3|AB|3.AB");
  one = CIDConvert("4,CD");
  EXPECT_EQ(Parts(two), "3|AB|3.AB");
  two = one;
  EXPECT_EQ(Parts(two), "4|CD|4,CD");
}

TEST(IDConvert, MovingLeavesTheSourceItsTexts) {
  CIDConvert one(3, "AB");
  const CIDConvert two(std::move(one));
  EXPECT_EQ(Parts(two), "3|AB|3.AB");
  EXPECT_EQ(Parts(one), "3|AB|3.AB");
  CIDConvert three("4,CD");
  three = std::move(one);
  EXPECT_EQ(Parts(three), "3|AB|3.AB");
  EXPECT_EQ(Parts(one), "3|AB|3.AB");
}

TEST(IDConvert, IsAPlainValueThatConvertsFromText) {
  EXPECT_FALSE(std::is_polymorphic_v<CIDConvert>);
  const CIDConvert convert = "3,AB";
  EXPECT_EQ(convert.GetIDType(), 3);
}

TEST(IDConvert, ANullTextCountsAsEmpty) {
  EXPECT_EQ(Parts(CIDConvert(1, nullptr)), "1||1.");
  EXPECT_EQ(Parts(CIDConvert(nullptr)), "0||");
}

} // namespace
