#include "symbolid/UpperId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace {

using tq::UpperBuffer;

// What the numbers of an upper-cased text say of its last bytes, eight at most.
std::string TailOf(const tq::UpperId& upper) {
  constexpr std::size_t size = sizeof upper.tail;
  char bytes[size];
  std::memcpy(bytes, &upper.tail, size);
  const std::size_t said = std::min(upper.text.size(), size);
  return std::string(bytes + size - said, said);
}

std::string_view UpperCased(CString& text, UpperBuffer& buffer) {
  const tq::UpperId upper = tq::UpperCased(text, buffer);
  const tq::PackedText head = tq::PackHead(upper.text);
  EXPECT_EQ(upper.head.low, head.low);
  EXPECT_EQ(upper.head.high, head.high);
  EXPECT_TRUE(upper.text.ends_with(TailOf(upper))) << upper.text;
  return upper.text;
}

TEST(UpperId, UpperCaseTextIsNotCopied) {
  for (const char* each : {"", "2330.TW", "@[`{", "ABCDEFGHIJKLMNOPQRSTUVWXYZ.LONGER"}) {
    CString text(each);
    const CString before = text;
    UpperBuffer buffer;
    EXPECT_EQ(UpperCased(text, buffer).data(), before.GetString()) << each;
  }
}

// Symptom: the words of a short id were read together with the count of its owners, while another
// thread was counting.
TEST(UpperId, TheCountOfOwnersIsNotRead) {
  for (int length = 1; length <= 16; ++length) {
    EXPECT_GE(tq::TailPosition(length), -tq::kReadableBefore) << length;
    EXPECT_GE(tq::BeforePosition(length), -tq::kReadableBefore) << length;
    EXPECT_LE(tq::BeforePosition(length) + 8, length) << length;
  }
}

TEST(UpperId, HeadAndTailAreThoseOfTheTextAtEveryLength) {
  for (std::size_t length = 1; length <= 18; ++length) {
    const std::string bytes = std::string("ABCDEFGHIJKLMNOPQR").substr(0, length);
    CString text(bytes.c_str());
    UpperBuffer buffer;
    const tq::UpperId upper = tq::UpperCased(text, buffer);
    EXPECT_EQ(upper.head, tq::PackHead(bytes)) << length;
    std::string tail(8, '\0');
    std::memcpy(tail.data(), &upper.tail, 8);
    const std::size_t kept = std::min<std::size_t>(length, 8);
    EXPECT_EQ(tail.substr(8 - kept), bytes.substr(length - kept)) << length;
  }
}

TEST(UpperId, LowerLettersAreRaisedAtEveryPosition) {
  for (std::size_t at = 0; at < 40; ++at) {
    std::string lower(40, '1');
    lower[at] = 'z';
    std::string upper(40, '1');
    upper[at] = 'Z';
    CString text(lower.c_str());
    UpperBuffer buffer;
    EXPECT_EQ(UpperCased(text, buffer), upper);
    EXPECT_STREQ(text.GetString(), lower.c_str()) << "the buffer was large enough";
  }
}

// A short text's last bytes are read together with what lies in front of it in memory.
TEST(UpperId, TheLastBytesAreThoseOfTheTextAtEveryLength) {
  const std::string digits = "123456789012345678901234567890";
  for (std::size_t length = 0; length <= digits.size(); ++length) {
    for (const char last : {'9', 'Z', 'z'}) {
      std::string bytes = digits.substr(0, length);
      if (!bytes.empty())
        bytes.back() = last;
      CString text(bytes.c_str());
      UpperBuffer buffer;
      const std::string tail = TailOf(tq::UpperCased(text, buffer));
      std::string expected = bytes.substr(length - std::min<std::size_t>(length, 8));
      if (last == 'z' && !expected.empty())
        expected.back() = 'Z';
      EXPECT_EQ(tail, expected) << bytes;
    }
  }
}

TEST(UpperId, NeighboursOfTheLettersStay) {
  CString text("@AZ[`az{");
  UpperBuffer buffer;
  EXPECT_EQ(UpperCased(text, buffer), "@AZ[`AZ{");
}

TEST(UpperId, TextLongerThanTheBufferIsRaisedInPlace) {
  const std::string lower(1000, 'q');
  CString text(lower.c_str());
  UpperBuffer buffer;
  EXPECT_EQ(UpperCased(text, buffer), std::string(1000, 'Q'));
}

TEST(UpperId, SecondBytesThatLookLikeLettersStay) {
  CString text("a\xa4\x61z");
  UpperBuffer buffer;
  EXPECT_EQ(UpperCased(text, buffer), "A\xa4\x61Z");
  CString copy("a\xa4\x61z");
  tq::MakeUpper(copy);
  EXPECT_STREQ(copy.GetString(), "A\xa4\x61Z");
}

TEST(UpperId, RaisingACopyLeavesTheOriginal) {
  const CString original("\xa4\x61z");
  CString copy = original;
  UpperBuffer buffer;
  UpperCased(copy, buffer);
  EXPECT_STREQ(original.GetString(), "\xa4\x61z");
}

} // namespace
