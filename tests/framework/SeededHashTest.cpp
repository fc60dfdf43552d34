// Hash values of untrusted text.
#include "platform/framework/SeededHash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(SeededHash, DependsOnEveryByteAndOnTheLength) {
  std::set<size_t> values;
  std::string text;
  for (int length = 0; length < 40; ++length, text += 'a') {
    values.insert(tq::SeededHash(text));
    for (size_t i = 0; i < text.size(); ++i) {
      std::string other = text;
      other[i] = 'b';
      values.insert(tq::SeededHash(other));
    }
  }
  // A value for each length and each position of the different letter.
  EXPECT_EQ(values.size(), 40u + 39u * 40u / 2u);
  EXPECT_NE(tq::SeededHash({"a\0", 2}), tq::SeededHash("a"));
}

TEST(SeededHash, LetterCaseCountsOrDoesNot) {
  EXPECT_NE(tq::SeededHash("pfda.nyse"), tq::SeededHash("PFDa.NYSE"));
  EXPECT_EQ(tq::SeededHashNoCase("pfda.nyse"), tq::SeededHashNoCase("PFDa.NYSE"));
  EXPECT_EQ(tq::SeededHashNoCase("@[`{azAZ09"), tq::SeededHashNoCase("@[`{AZaz09"));
  for (const char* other : {"`[`{azAZ09", "@{`{azAZ09", "@[@{azAZ09", "@[`[azAZ09"})
    EXPECT_NE(tq::SeededHashNoCase("@[`{azAZ09"), tq::SeededHashNoCase(other)) << other;
}

TEST(SeededHash, BytesAboveAsciiHaveNoCase) {
  EXPECT_NE(tq::SeededHashNoCase("\xC1"), tq::SeededHashNoCase("\xE1"));
  EXPECT_EQ(tq::SeededHashNoCase("\xC1"
                                 "a\xE1"),
            tq::SeededHashNoCase("\xC1"
                                 "A\xE1"));
}

TEST(SeededHash, NoTextIsAllowed) {
  EXPECT_EQ(tq::SeededHash(nullptr, 0), tq::SeededHash(""));
}

} // namespace
