// What one id string has and another has not, turned back and forth.
#include "dialogs/undo/IdsChange.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

// Back, forth and back again.
void ExpectTurns(const std::string& before, const std::string& after) {
  tq::IdsChange change(before, after);
  EXPECT_EQ(change.IsNone(), before == after);
  std::string ids = after;
  for (const std::string* const other : {&before, &after, &before}) {
    ASSERT_TRUE(change.Turn(ids));
    ASSERT_EQ(ids, *other) << "'" << before << "' and '" << after << "'";
  }
}

TEST(IdsChange, EachTextComesOfTheOther) {
  const std::vector<std::string> texts = {"",        ",",          ",,",           "a",
                                          "a,b,c",   "c,b,a",      "b,c,a",        " a ,b,,C:,c",
                                          "a,a,b,a", "a,b,a,a,a,", "x,a,b,c,d,e,", "A:,a,A:,b"};
  for (const std::string& before : texts) {
    for (const std::string& after : texts)
      ExpectTurns(before, after);
  }
}

TEST(IdsChange, RandomTextsComeOfEachOther) {
  std::mt19937 random(20261122);
  const auto text = [&random] {
    std::string ids;
    for (unsigned i = random() % 12; i > 0; --i)
      ids += static_cast<char>('a' + random() % 6) + std::string(random() % 4 == 0 ? "" : ",");
    return ids;
  };
  for (int i = 0; i < 5000; ++i)
    ASSERT_NO_FATAL_FAILURE(ExpectTurns(text(), text()));
}

TEST(IdsChange, NoneFitsAnyText) {
  tq::IdsChange none;
  std::string ids = "a,b";
  EXPECT_TRUE(none.IsNone());
  EXPECT_TRUE(none.Turn(ids));
  EXPECT_EQ(ids, "a,b");
}

TEST(IdsChange, ATextOfAnotherLengthIsLeftAlone) {
  tq::IdsChange change("a,b,c", "a,c");
  for (const char* const other : {"a,b,c", "a", ""}) {
    std::string ids = other;
    EXPECT_FALSE(change.Turn(ids));
    EXPECT_EQ(ids, other);
  }
  std::string ids = "a,c";
  EXPECT_TRUE(change.Turn(ids));
  EXPECT_EQ(ids, "a,b,c");
}

} // namespace
