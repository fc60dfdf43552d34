// Which encoding text is in, whatever the file says.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::Encoded;
using recovery::FileOf;
using recovery::Outcome;
using recovery::Recover;
using recovery::StoredList;
using tq::Fault;
using tq::TextEncoding;

// The same names in the three encodings.
constexpr char kTraditional[] = "\u81EA\u9078\u80A1\u4E00";              // "own choice one"
constexpr char kTraditional2[] = "\u8A31\u529F\u84CB\u534A\u5C0E\u9AD4"; // trails of 5C
constexpr char kTraditional3[] = "\u53F0\u7A4D\u96FB\u8207\u91D1\u878D";
constexpr char kSimplified[] = "\u81EA\u9009\u80A1\u4E00";
constexpr char kSimplified2[] = "\u6211\u7684\u80A1\u7968\u6C60";
constexpr char kSimplified3[] = "\u94F6\u884C\u4E0E\u8BC1\u5238";

std::vector<StoredList> Names(TextEncoding encoding, bool traditional) {
  const char* const tw[] = {kTraditional, kTraditional2, kTraditional3};
  const char* const cn[] = {kSimplified, kSimplified2, kSimplified3};
  std::vector<StoredList> lists;
  for (int i = 0; i < 3; ++i)
    lists.push_back({"L" + std::to_string(i), Encoded((traditional ? tw : cn)[i], encoding), "X"});
  return lists;
}

struct Wrong {
  const char* declared;
  TextEncoding actual;
  bool traditional;
};

class WrongDeclaration : public testing::TestWithParam<Wrong> {};

TEST_P(WrongDeclaration, IsFoundAndTheNamesAreRead) {
  const Wrong& wrong = GetParam();
  const std::string file = FileOf(Names(wrong.actual, wrong.traditional), wrong.declared);
  const Outcome outcome = Recover(file, TextEncoding::Utf8);
  EXPECT_TRUE(outcome.Has(Fault::WrongEncoding));
  EXPECT_EQ(outcome.encoding, wrong.actual);
  EXPECT_EQ(outcome.Kept(), Names(TextEncoding::Utf8, wrong.traditional));
}

INSTANTIATE_TEST_SUITE_P(All, WrongDeclaration,
                         testing::Values(Wrong{"big5", TextEncoding::Gbk, false},
                                         Wrong{"big5", TextEncoding::Utf8, true},
                                         Wrong{"big5", TextEncoding::Utf8, false},
                                         Wrong{"gb2312", TextEncoding::Big5, true},
                                         Wrong{"gb2312", TextEncoding::Utf8, false},
                                         Wrong{"gb2312", TextEncoding::Utf8, true},
                                         Wrong{"utf-8", TextEncoding::Big5, true},
                                         Wrong{"utf-8", TextEncoding::Gbk, false},
                                         Wrong{"us-ascii", TextEncoding::Big5, true}));

TEST(RecoveryEncoding, RightDeclarationsAreBelieved) {
  const auto check = [](const char* declared, TextEncoding encoding, bool traditional) {
    const std::string file = FileOf(Names(encoding, traditional), declared);
    const Outcome outcome = Recover(file, encoding);
    EXPECT_TRUE(outcome.sound) << declared;
    EXPECT_EQ(outcome.Kept(), Names(encoding, traditional)) << declared;
    EXPECT_EQ(outcome.encoding, encoding);
  };
  check("big5", TextEncoding::Big5, true);
  check("gb2312", TextEncoding::Gbk, false);
  check("utf-8", TextEncoding::Utf8, true);
}

TEST(RecoveryEncoding, OneListInAnotherEncodingIsConverted) {
  std::vector<StoredList> lists = Names(TextEncoding::Big5, true);
  lists[1].name = kTraditional2; // UTF-8
  const Outcome outcome = Recover(FileOf(lists, "big5"), TextEncoding::Big5);
  EXPECT_EQ(outcome.Kept(), Names(TextEncoding::Big5, true));
  ASSERT_EQ(outcome.lists.size(), 3U);
  EXPECT_TRUE(recovery::HasFault(outcome.lists[1], Fault::OtherEncoding));
  EXPECT_EQ(outcome.lists[0].fate, tq::ListFate::Whole);
  EXPECT_EQ(outcome.lists[1].fate, tq::ListFate::Repaired);
}

TEST(RecoveryEncoding, AGbkNameAmongBig5OnesIsConverted) {
  std::vector<StoredList> lists = Names(TextEncoding::Big5, true);
  lists[2].name = Encoded(kSimplified2, TextEncoding::Gbk);
  const Outcome outcome = Recover(FileOf(lists, "big5"), TextEncoding::Utf8);
  ASSERT_EQ(outcome.lists.size(), 3U);
  EXPECT_EQ(outcome.lists[2].name, kSimplified2);
  EXPECT_TRUE(recovery::HasFault(outcome.lists[2], Fault::OtherEncoding));
}

TEST(RecoveryEncoding, WhatTheEncodingLacksIsSaid) {
  const std::string file = FileOf(Names(TextEncoding::Gbk, false), "gb2312");
  const Outcome outcome = Recover(file, TextEncoding::Big5);
  ASSERT_EQ(outcome.lists.size(), 3U);
  EXPECT_TRUE(recovery::HasFault(outcome.lists[0], Fault::NotCarried));
  EXPECT_EQ(outcome.lists[0].name, Encoded(kSimplified, TextEncoding::Big5));
}

TEST(RecoveryEncoding, WithoutADeclarationTextIsTakenForWhatItLooksLike) {
  for (const TextEncoding assumed : {TextEncoding::Big5, TextEncoding::Gbk}) {
    std::string big5 = FileOf(Names(TextEncoding::Big5, true), "big5");
    std::string gbk = FileOf(Names(TextEncoding::Gbk, false), "gb2312");
    big5.erase(0, big5.find('\n') + 1);
    gbk.erase(0, gbk.find('\n') + 1);
    const Outcome one = Recover(big5, TextEncoding::Utf8, assumed);
    EXPECT_EQ(one.Kept(), Names(TextEncoding::Utf8, true));
    EXPECT_TRUE(one.Has(Fault::Declaration));
    EXPECT_EQ(Recover(gbk, TextEncoding::Utf8, assumed).Kept(), Names(TextEncoding::Utf8, false));
  }
}

TEST(RecoveryEncoding, AFileInUtf16IsDecoded) {
  const std::string text = FileOf(Names(TextEncoding::Utf8, true), "utf-16");
  for (const bool little : {true, false}) {
    std::string file = little ? "\xFF\xFE" : "\xFE\xFF";
    for (const char* at = text.data(); at != text.data() + text.size();) {
      const char32_t c = tq::TakeUtf8Char(at);
      const char high = static_cast<char>(c >> 8);
      const char low = static_cast<char>(c & 0xFF);
      file += little ? low : high;
      file += little ? high : low;
    }
    const Outcome outcome = Recover(file, TextEncoding::Big5);
    EXPECT_TRUE(outcome.sound);
    EXPECT_EQ(outcome.Kept(), Names(TextEncoding::Big5, true));
    ASSERT_FALSE(outcome.lists.empty());
    EXPECT_EQ(outcome.lists[0].offset, 2 + 2 * text.find("<List"));
    EXPECT_EQ(outcome.lists[0].line, 4U);

    const Outcome cut = Recover(file.substr(0, file.size() - 41), TextEncoding::Big5);
    EXPECT_EQ(cut.Kept(), Names(TextEncoding::Big5, true));
    EXPECT_TRUE(cut.Has(Fault::CutOff));
    const Outcome unmarked = Recover(file.substr(2), TextEncoding::Big5);
    EXPECT_EQ(unmarked.Kept(), Names(TextEncoding::Big5, true));
    EXPECT_TRUE(unmarked.Has(Fault::Declaration));
  }
}

TEST(RecoveryEncoding, AMarkOfUtf8IsBelieved) {
  const std::string text = FileOf(Names(TextEncoding::Utf8, true), "utf-8");
  const Outcome outcome = Recover("\xEF\xBB\xBF" + text, TextEncoding::Utf8);
  EXPECT_TRUE(outcome.sound);
  EXPECT_EQ(outcome.lists.at(0).offset, 3 + text.find("<List"));
}

} // namespace
