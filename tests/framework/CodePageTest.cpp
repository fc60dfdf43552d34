#include "platform/CodePage.h"

#include <cstring>
#include <random>
#include <string>

#include "tests/framework/FrameworkTest.h"

namespace {

// The definition: goes forward from the start of the text, where IsCharStart looks back.
bool StartsByWalk(const std::string& text, size_t position) {
  const char* const end = text.data() + text.size();
  const char* at = text.data();
  while (at < text.data() + position)
    at = tq::NextChar(at, end);
  return at == text.data() + position;
}

const char* FindByWalk(const std::string& text, const std::string& wanted) {
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at < end; at = tq::NextChar(at, end)) {
    const auto position = static_cast<size_t>(at - text.data());
    if (text.compare(position, wanted.size(), wanted) == 0 &&
        StartsByWalk(text, position + wanted.size()))
      return at;
  }
  return nullptr;
}

// Text with many lead bytes, trail bytes that look like other characters, and halves of characters.
std::string RandomText(std::mt19937& random, size_t longest) {
  static constexpr char bytes[] = "\xB3\xA4\x81\xFE\x5C|aA,\x80\xFF";
  std::string text(random() % (longest + 1), ' ');
  for (char& byte : text)
    byte = bytes[random() % (sizeof bytes - 1)];
  return text;
}

} // namespace

TEST(CodePage, LeadBytesAreThoseOfBothCodePages) {
  EXPECT_FALSE(tq::IsLeadByte('A'));
  EXPECT_FALSE(tq::IsLeadByte('\x7F'));
  EXPECT_FALSE(tq::IsLeadByte('\x80'));
  EXPECT_TRUE(tq::IsLeadByte('\x81'));
  EXPECT_TRUE(tq::IsLeadByte('\xFE'));
  EXPECT_FALSE(tq::IsLeadByte('\xFF'));
}

TEST(CodePage, LeadByteWithoutTrailIsOneByte) {
  const char text[] = "\xB3\x5C\xB3";
  EXPECT_EQ(tq::CharLength(text, text + 3), 2u);
  EXPECT_EQ(tq::CharLength(text + 2, text + 3), 1u);
  EXPECT_EQ(tq::CharLength(text, text + 1), 1u);
  const char broken[] = "\xB3\0x";
  EXPECT_EQ(tq::CharLength(broken, broken + 3), 1u);
}

TEST(CodePage, PreviousCharStepsOverWholeCharacters) {
  const char* const text = "a\xB3\x5C\x5C";
  EXPECT_EQ(tq::PreviousChar(text, text + 4), text + 3);
  EXPECT_EQ(tq::PreviousChar(text, text + 3), text + 1);
  EXPECT_EQ(tq::PreviousChar(text, text + 1), text);
  EXPECT_EQ(tq::PreviousChar(text, text), text);
}

TEST(CodePage, CharStartsByLookBackAreThoseOfAWalkFromTheStart) {
  std::mt19937 random(20290101);
  for (int round = 0; round < 3000; ++round) {
    const std::string text = RandomText(random, 14);
    for (size_t i = 0; i <= text.size(); ++i)
      ASSERT_EQ(tq::IsCharStart(text.c_str(), text.c_str() + i), StartsByWalk(text, i))
          << testing::PrintToString(text) << " at " << i;
  }
}

TEST(CodePage, FindTextFindsWhatAWalkByCharactersFinds) {
  std::mt19937 random(4711);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = RandomText(random, 14);
    const std::string wanted = RandomText(random, 2) + "\x5C";
    ASSERT_EQ(tq::FindText(text.data(), text.data() + text.size(), wanted.data(), wanted.size()),
              FindByWalk(text, wanted))
        << testing::PrintToString(text) << " for " << testing::PrintToString(wanted);
    const std::string half(1, "\xB3\x5C|\x80"[random() % 4]);
    ASSERT_EQ(tq::FindChar(text.data(), text.data() + text.size(), half[0]), FindByWalk(text, half))
        << testing::PrintToString(text) << " for " << testing::PrintToString(half);
  }
}

TEST(CodePage, FindLastCharPassesOverTrailBytes) {
  const std::string path = std::string("C:\\TW\\") + kBackslashTrails;
  const char* const end = path.data() + path.size();
  EXPECT_EQ(tq::FindLastChar(path.data(), end, '\\'), path.data() + 5);
  EXPECT_EQ(tq::FindLastChar(kBackslashTrails, kBackslashTrails + 6, '\\'), nullptr);
  EXPECT_EQ(tq::FindLastChar(path.data(), path.data(), '\\'), nullptr);
}

TEST(CodePage, CutLengthNeverSplitsACharacter) {
  EXPECT_EQ(tq::CutLength("abc", 3, 2), 2u);
  EXPECT_EQ(tq::CutLength("abc", 3, 9), 3u);
  EXPECT_EQ(tq::CutLength(kBackslashTrails, 6, 6), 6u);
  EXPECT_EQ(tq::CutLength(kBackslashTrails, 6, 5), 4u);
  EXPECT_EQ(tq::CutLength(kBackslashTrails, 6, 1), 0u);
  EXPECT_EQ(tq::CutLength(kBackslashTrails, 6, 0), 0u);
  EXPECT_EQ(tq::CutLength("\xA1\xA1\xA1\xA1", 4, 3), 2u) << "every byte could open a character";
}

TEST(CodePage, CopyCutFillsTheFieldWithZeros) {
  char field[6];
  std::memset(field, 'x', sizeof field);
  EXPECT_EQ(tq::CopyCut(field, kBackslashTrails), 4u);
  EXPECT_EQ(std::memcmp(field, "\xB3\x5C\xA5\x5C\0\0", 6), 0);
  std::memset(field, 'x', sizeof field);
  EXPECT_EQ(tq::CopyCut(field, "ab"), 2u);
  EXPECT_EQ(std::memcmp(field, "ab\0\0\0\0", 6), 0);
  EXPECT_EQ(tq::CopyCut(field, "abcdef"), 5u);
  EXPECT_STREQ(field, "abcde");
}

TEST(CodePage, CopyCutTakesNullAndFieldsOfOneByteAndNone) {
  char field[2] = {'x', 'y'};
  EXPECT_EQ(tq::CopyCut(field, 1, "abc"), 0u);
  EXPECT_EQ(field[0], '\0');
  EXPECT_EQ(tq::CopyCut(field, 0, "abc"), 0u);
  EXPECT_EQ(field[1], 'y') << "nothing outside of the size is touched";
  EXPECT_EQ(tq::CopyCut(field, 2, nullptr), 0u);
  EXPECT_EQ(field[1], '\0');
}

TEST(CodePage, OnlyAsciiLettersHaveCase) {
  EXPECT_EQ(tq::ToUpperLetter('a'), 'A');
  EXPECT_EQ(tq::ToUpperLetter('z'), 'Z');
  EXPECT_EQ(tq::ToUpperLetter('{'), '{');
  EXPECT_EQ(tq::ToUpperLetter('\xE1'), '\xE1');
  EXPECT_EQ(tq::ToLowerLetter('Z'), 'z');
  EXPECT_EQ(tq::ToLowerLetter('@'), '@');
}

struct NoCase {
  const char* left;
  const char* right;
  int order;
};

TEST(CodePage, CompareNoCaseFoldsLettersButNotTrailBytes) {
  const NoCase cases[] = {
      {"2330.tw", "2330.TW", 0},
      {"a", "B", -1},
      {"b", "A", 1},
      {"ab", "a", 1},
      {"", "a", -1},
      {nullptr, "", 0},
      {"_", "A", -1}, // the order is that of lower-case bytes
      {"\xA4\x41", "\xA4\x61", -1},
      {"\xA4\x61", "\xA4\x41", 1},
      {"\xA4\x41x", "\xA4\x41X", 0},
      {"\xA4", "\xA4", 0},
      {"\xA4", "\xA4\x41", -1},
      {"\xFF", "a", 1}, // bytes are unsigned
  };
  for (const NoCase& test : cases) {
    EXPECT_EQ(tq::CompareNoCase(test.left, test.right), test.order)
        << testing::PrintToString(test.left) << " " << testing::PrintToString(test.right);
    if (test.left == nullptr)
      continue;
    const bool equal =
        tq::EqualNoCase(test.left, std::strlen(test.left), test.right, std::strlen(test.right));
    EXPECT_EQ(equal, test.order == 0);
  }
}
