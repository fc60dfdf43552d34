// Ids of groups: folding, cutting at the comma, records without a NUL.
#include "groups/GroupId.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <string>

#include "platform/CodePage.h"
#include "symbolid/SymbolKey.h"

namespace {

bool SameId(std::string_view left, std::string_view right) {
  tq::FoldedId a = {};
  tq::FoldedId b = {};
  return tq::FoldId(left, a) && tq::FoldId(right, b) && a == b;
}

TEST(GroupIdTest, LettersOfEitherCaseAreOne) {
  EXPECT_TRUE(SameId("ab12", "AB12"));
  EXPECT_TRUE(SameId("azAZ09", "AZaz09"));
  EXPECT_TRUE(SameId("", ""));
  EXPECT_FALSE(SameId("ab12", "ab1"));
  EXPECT_FALSE(SameId("ab12", "ab13"));
  EXPECT_FALSE(SameId("", "a"));
}

TEST(GroupIdTest, OnlyLettersHaveCase) {
  for (int byte = 1; byte < 0x80; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    for (int other = 1; other < 0x80; ++other) {
      const std::string with(1, static_cast<char>(other));
      EXPECT_EQ(SameId(text, with), tq::EqualNoCase(text.data(), 1, with.data(), 1));
    }
  }
}

TEST(GroupIdTest, EveryByteOfALongIdCounts) {
  const std::string id = "abcdefghijklmnop";
  EXPECT_TRUE(SameId(id, "ABCDEFGHIJKLMNOP"));
  for (size_t i = 0; i < id.size(); ++i) {
    std::string other = id;
    other[i] = '-';
    EXPECT_FALSE(SameId(id, other)) << i;
  }
}

TEST(GroupIdTest, LongerThanARecordIsNoId) {
  tq::FoldedId folded;
  EXPECT_TRUE(tq::FoldId("1234567890123456", folded));
  EXPECT_FALSE(tq::FoldId("12345678901234567", folded));
}

// The second byte of a double-byte character may look like a letter but has no case.
TEST(GroupIdTest, TrailBytesKeepTheirCase) {
  EXPECT_FALSE(SameId("\xA4\x61", "\xA4\x41"));
  EXPECT_TRUE(SameId("\xA4\x61x", "\xA4\x61X"));
  EXPECT_TRUE(SameId("x\xA4", "X\xA4"));
}

TEST(GroupIdTest, CutBehindTheFirstComma) {
  EXPECT_EQ(tq::AfterComma("x,123"), "123");
  EXPECT_EQ(tq::AfterComma("x,1,2"), "1,2");
  EXPECT_EQ(tq::AfterComma("x,"), "");
  EXPECT_EQ(tq::AfterComma(",x"), "x");
  EXPECT_EQ(tq::AfterComma("123"), "123");
  EXPECT_EQ(tq::AfterComma(""), "");
}

TEST(GroupIdTest, TextsThatFillTheirFieldAreEndedAtAWholeCharacter) {
  GroupInfo info;
  std::memset(&info, 'a', sizeof(info));
  tq::TerminateTexts(info);
  EXPECT_EQ(std::string(info.szID), std::string(16, 'a'));
  EXPECT_EQ(std::string(info.szName), std::string(48, 'a'));
  std::memset(&info, 'a', sizeof(info));
  for (size_t i = 1; i + 1 < sizeof(info.szName); i += 2)
    std::memcpy(info.szName + i, "\xA4\xA4", 2);
  tq::TerminateTexts(info);
  EXPECT_EQ(std::strlen(info.szName), 47u);
}

TEST(GroupIdTest, TextsThatEndAreLeftByteForByte) {
  GroupInfo info;
  std::memset(&info, 'a', sizeof(info));
  info.szID[3] = '\0';
  info.szName[0] = '\0';
  const GroupInfo before = info;
  tq::TerminateTexts(info);
  EXPECT_EQ(std::memcmp(&info, &before, sizeof(info)), 0);
}

// Ids that would collide if their hash were two steps of MixWords without a secret.
TEST(GroupIdTest, NobodyCanChooseIdsOfOneHash) {
  constexpr std::size_t kIds = 80'000;
  std::set<std::uint32_t> hashes;
  for (std::uint64_t low = 0; low < kIds; ++low) {
    const tq::FoldedId id = {low, tq::MixWords(0, low)};
    ASSERT_EQ(tq::MixWords(tq::MixWords(0, id.low), id.high), 0u);
    hashes.insert(tq::HashOf(id));
  }
  EXPECT_GT(hashes.size(), kIds - 20);
}

TEST(GroupIdTest, PushedTextsAreCutAtAWholeCharacter) {
  const std::string name = "x" + std::string(48, '\xA4');
  const GroupInfo info = tq::MakeGroupInfo(7, "12345678901234567", name.c_str(), true);
  EXPECT_EQ(info.nType, 7);
  EXPECT_STREQ(info.szID, "1234567890123456");
  EXPECT_EQ(std::string(info.szName), name.substr(0, 47));
  EXPECT_EQ(static_cast<int>(info.bHasSubGroup), 1);
  EXPECT_EQ(static_cast<int>(tq::MakeGroupInfo(7, nullptr, nullptr, false).bHasSubGroup), 0);
}

} // namespace
