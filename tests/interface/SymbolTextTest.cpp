// Text between UTF-8 and the process's code page, and paths that a terminal opens itself.
#include "platform/interface/TQSymbolText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"

namespace {

bool Traditional() {
  return IsTraditionChinese() != 0;
}

// Characters of the code page whose second bytes are backslashes, vertical bars and letters.
const char* HardText() {
  return Traditional() ? "許功蓋 2330.TW 餐" : "誠廫閈 600000.SH 餐";
}

TEST(SymbolText, AsciiAndNothingStayAsTheyAre) {
  EXPECT_STREQ(TQFromUtf8("2330.TW"), "2330.TW");
  EXPECT_STREQ(TQToUtf8("2330.TW"), "2330.TW");
  EXPECT_TRUE(TQFromUtf8("").IsEmpty() && TQFromUtf8(nullptr).IsEmpty());
  EXPECT_TRUE(TQToUtf8("").IsEmpty() && TQToUtf8(nullptr).IsEmpty());
}

TEST(SymbolText, WhatTheCodePageHasComesBack) {
  const CString ansi = TQFromUtf8(HardText());
  EXPECT_EQ(std::string(ansi), standin::ToAnsi(HardText()));
  EXPECT_STREQ(TQToUtf8(ansi), HardText());
}

TEST(SymbolText, WhatItLacksIsAQuestionMarkAndNothingSimilar) {
  EXPECT_STREQ(TQFromUtf8("a\U0001F600b"), "a?b");
  EXPECT_STREQ(TQFromUtf8("ñ\u0E01"), "??");
  EXPECT_STREQ(TQFromUtf8("\uE000"), "?"); // of the private use area
  EXPECT_EQ(std::string(TQFromUtf8("选")), Traditional() ? "?" : "\xD1\xA1");
}

TEST(SymbolText, BytesThatAreNoUtf8AreQuestionMarks) {
  const struct {
    const char* bytes;
    const char* text;
  } kCases[] = {
      {"a\x80z", "a?z"},            // a continuation byte alone
      {"\xC0\xAF", "??"},           // overlong
      {"\xE0\x80\xAF", "???"},      // overlong
      {"\xED\xA0\x80", "???"},      // a surrogate
      {"\xF4\x90\x80\x80", "????"}, // beyond Unicode
      {"\xEF\xBF\xBE", "???"},      // U+FFFE
      {"\xE8\xA8", "??"},           // cut off by the end
      {"\xE8\xA8Z", "??Z"},         // and by a letter, which stays
      {"\xFE\xFF", "??"},           // bytes that UTF-8 does not have
  };
  for (const auto& each : kCases)
    EXPECT_STREQ(TQFromUtf8(each.bytes), each.text) << testing::PrintToString(each.bytes);
}

TEST(SymbolText, ACharacterBehindOneThatIsCutOffStays) {
  EXPECT_EQ(std::string(TQFromUtf8("\xE9餐")), "?" + standin::ToAnsi("餐"));
}

TEST(SymbolText, BytesThatAreNoCharactersAreQuestionMarks) {
  EXPECT_STREQ(TQToUtf8("\xA4"), "?");     // a lead byte at the end
  EXPECT_STREQ(TQToUtf8("\xA4 b"), "? b"); // and in front of what is no trail byte
  EXPECT_STREQ(TQToUtf8("a\xFFz"), "a?z"); // no lead byte
  EXPECT_STREQ(TQToUtf8("\x80"), Traditional() ? "?" : "€");
}

// Whether the text is UTF-8, without asking the library.
bool IsUtf8(const std::string& text) {
  int left = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (left > 0 ? (byte & 0xC0) != 0x80 : (byte >= 0x80 && byte < 0xC2) || byte > 0xF4)
      return false;
    left = left > 0 ? left - 1 : byte < 0xC0 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  }
  return left == 0;
}

TEST(SymbolText, EveryPairOfBytesGivesUtf8) {
  for (int lead = 0x80; lead <= 0xFF; ++lead) {
    std::string pairs;
    for (int trail = 1; trail <= 0xFF; ++trail)
      pairs += {static_cast<char>(lead), static_cast<char>(trail), ' '};
    const CString utf8 = TQToUtf8(pairs.c_str());
    EXPECT_TRUE(IsUtf8(std::string(utf8))) << lead;
    EXPECT_FALSE(utf8.IsEmpty()) << lead;
  }
}

TEST(SymbolText, ALongTextIsConvertedWhole) {
  std::string utf8;
  for (int i = 0; i < 100'000; ++i)
    utf8 += "餐x";
  const CString ansi = TQFromUtf8(utf8.c_str());
  EXPECT_EQ(ansi.GetLength(), 300'000);
  EXPECT_EQ(std::string(TQToUtf8(ansi)), utf8);
}

TEST(SymbolText, TheBackupsPathCanBeOpened) {
  standin::Reset();
  // The last character of the directory ends in the byte of a backslash.
  const TempDir directory(Traditional() ? "許" : "誠");
  CTQSymbolListMgr manager;
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 0, 0, nullptr, 0, 0), 1);
  ASSERT_EQ(manager.BackupSymbolList(), 1);
  std::FILE* const file = std::fopen(TQSystemPath(manager.GetBackSymbolListPath()), "rb");
  ASSERT_NE(file, nullptr);
  std::fclose(file);
}

} // namespace
