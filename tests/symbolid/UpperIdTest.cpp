#include "symbolid/UpperId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

using tq::UpperBuffer;

// The tail of an upper-cased id, as bytes.
std::string TailOf(std::uint64_t tail) {
  std::string bytes(sizeof tail, '\0');
  std::memcpy(bytes.data(), &tail, sizeof tail);
  return bytes;
}

// The last eight bytes of a text, with NULs in front of a shorter one.
std::string LastEight(std::string_view text) {
  const std::size_t size = std::min<std::size_t>(text.size(), 8);
  return std::string(8 - size, '\0').append(text.substr(text.size() - size));
}

// The upper-cased text, once its head and tail were found to be its own.
std::string_view UpperCased(CString& text, UpperBuffer& buffer) {
  const tq::UpperId upper = tq::UpperCased(text, buffer);
  EXPECT_EQ(upper.head, tq::PackHead(upper.text)) << upper.text;
  EXPECT_EQ(TailOf(upper.tail), LastEight(upper.text)) << upper.text;
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

// Symptom: of short ids bytes in front of the text were read, where another thread counted owners.
// Each text fills a heap block of its own, so that the sanitizer sees a read before or behind it.
TEST(UpperId, AShortTextIsPackedFromItsOwnBytesAlone) {
  for (std::size_t size = tq::kShortest; size <= sizeof(tq::PackedText); ++size) {
    const std::string bytes = std::string("ABCDEFGHIJKLMNOP").substr(0, size);
    const std::vector<char> block(bytes.begin(), bytes.end());
    const tq::ShortText packed = tq::PackShort({block.data(), size});
    EXPECT_EQ((tq::PackedText{packed.low, packed.high}), tq::PackHead(bytes)) << size;
    EXPECT_EQ(TailOf(packed.tail), LastEight(bytes)) << size;
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

TEST(UpperId, HeadAndTailAreTheTextsAtEveryLength) {
  const std::string digits = "123456789012345678901234567890";
  for (std::size_t length = 0; length <= digits.size(); ++length) {
    for (const char last : {'9', 'Z', 'z'}) {
      std::string bytes = digits.substr(0, length);
      if (!bytes.empty())
        bytes.back() = last;
      CString text(bytes.c_str());
      UpperBuffer buffer;
      if (!bytes.empty())
        bytes.back() = last == 'z' ? 'Z' : last;
      EXPECT_EQ(UpperCased(text, buffer), bytes);
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
