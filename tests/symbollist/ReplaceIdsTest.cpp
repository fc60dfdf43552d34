// Replacing text within a bound.
#include "symbollist/ReplaceIds.h"

#include <gtest/gtest.h>

namespace {

TEST(ReplaceIds, AResultOfTheLimitIsTaken) {
  CString text = "a-a";
  EXPECT_TRUE(tq::ReplaceWithin(text, "a", "bcd", 7));
  EXPECT_STREQ(text, "bcd-bcd");
}

TEST(ReplaceIds, AResultBeyondTheLimitChangesNothing) {
  CString text = "a-a";
  EXPECT_FALSE(tq::ReplaceWithin(text, "a", "bcd", 6));
  EXPECT_STREQ(text, "a-a");
}

TEST(ReplaceIds, WhatDoesNotGrowIsTakenWhateverTheLimit) {
  CString text = "abc-abc";
  EXPECT_TRUE(tq::ReplaceWithin(text, "abc", "xyz", 0));
  EXPECT_TRUE(tq::ReplaceWithin(text, "xyz", "x", 0));
  EXPECT_TRUE(tq::ReplaceWithin(text, "none", "longer", 3));
  EXPECT_STREQ(text, "x-x");
}

TEST(ReplaceIds, NothingStandsNowhere) {
  CString text = "abc";
  EXPECT_TRUE(tq::ReplaceWithin(text, "", "x", 3));
  EXPECT_STREQ(text, "abc");
}

TEST(ReplaceIds, SecondBytesOfCharactersAreNoOccurrence) {
  CString text = "\xA4\x61 a";
  EXPECT_TRUE(tq::ReplaceWithin(text, "a", "bb", 5));
  EXPECT_STREQ(text, "\xA4\x61 bb");
}

} // namespace
