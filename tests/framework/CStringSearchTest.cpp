// Searching and cutting of CString.
#include "platform/framework/CString.h"

#include <vector>

#include "tests/framework/FrameworkTest.h"

TEST(CStringSearch, FindsCharactersAndTexts) {
  const CString text("2330.TW,2317.TW");
  EXPECT_EQ(text.Find(','), 7);
  EXPECT_EQ(text.Find('x'), -1);
  EXPECT_EQ(text.Find("TW"), 5);
  EXPECT_EQ(text.Find("TW", 6), 13);
  EXPECT_EQ(text.Find("TWx"), -1);
  EXPECT_EQ(text.Find("2330.TW,2317.TW,"), -1);
  EXPECT_EQ(text.ReverseFind('.'), 12);
  EXPECT_EQ(text.ReverseFind('x'), -1);
  EXPECT_EQ(text.FindOneOf(",."), 4);
  EXPECT_EQ(text.FindOneOf(""), -1);
}

TEST(CStringSearch, StartOutsideOfTheTextIsDefined) {
  const CString text("abca");
  EXPECT_EQ(text.Find('a', -5), 0);
  EXPECT_EQ(text.Find('a', 1), 3);
  EXPECT_EQ(text.Find('a', 4), -1);
  EXPECT_EQ(text.Find('a', 99), -1);
  EXPECT_EQ(text.Find("", 2), 2);
  EXPECT_EQ(text.Find("", 4), 4);
  EXPECT_EQ(text.Find("", 5), -1);
  EXPECT_EQ(CString().Find('a'), -1);
  EXPECT_EQ(CString().ReverseFind('a'), -1);
}

TEST(CStringSearch, TrailByteIsNeitherBackslashNorBarNorLetter) {
  CString text(kBackslashTrails);
  EXPECT_EQ(text.Find('\\'), -1);
  EXPECT_EQ(text.Find("\\"), -1);
  EXPECT_EQ(text.ReverseFind('\\'), -1);
  EXPECT_EQ(text.FindOneOf("\\"), -1);
  text += "\\x";
  EXPECT_EQ(text.Find('\\'), 6);
  EXPECT_EQ(text.ReverseFind('\\'), 6);
  const CString bar("\xA4|a\xA4\x41|");
  EXPECT_EQ(bar.Find('|'), 5);
  EXPECT_EQ(bar.Find('A'), -1);
}

TEST(CStringSearch, TextIsNotFoundAcrossCharacters) {
  // The trail of one character and the lead byte of the next together equal the wanted character.
  const CString text("\xA4\xB3\x5C");
  EXPECT_EQ(text.Find("\xB3\x5C"), -1);
  EXPECT_EQ(CString("\xA4\xA4\xB3\x5C").Find("\xB3\x5C"), 2);
  EXPECT_EQ(CString("\xB3\x5C").Find("\xB3"), -1) << "half of a character";
  EXPECT_EQ(CString("x\xB3").Find("\xB3"), 1) << "a lead byte without trail";
  EXPECT_EQ(text.Find('\\', 1), 2) << "a start inside of a character is the next character";
}

TEST(CStringSearch, LeftRightMidClamp) {
  const CString text("2330.TW");
  EXPECT_EQ(text.Left(4), "2330");
  EXPECT_EQ(text.Left(-1), "");
  EXPECT_EQ(text.Left(99), "2330.TW");
  EXPECT_EQ(text.Right(2), "TW");
  EXPECT_EQ(text.Right(0), "");
  EXPECT_EQ(text.Right(99), "2330.TW");
  EXPECT_EQ(text.Mid(5), "TW");
  EXPECT_EQ(text.Mid(-1), "2330.TW");
  EXPECT_EQ(text.Mid(7), "");
  EXPECT_EQ(text.Mid(99), "");
  EXPECT_EQ(text.Mid(2, 2), "30");
  EXPECT_EQ(text.Mid(5, 99), "TW");
  EXPECT_EQ(text.Mid(5, 2147483647), "TW");
  EXPECT_EQ(text.Mid(2, -1), "");
}

TEST(CStringSearch, CutDropsTheHalfCharacter) {
  const CString text(kBackslashTrails);
  EXPECT_EQ(text.Left(3), "\xB3\x5C");
  EXPECT_EQ(text.Left(1), "");
  EXPECT_EQ(text.Right(3), "\xBB\x5C");
  EXPECT_EQ(text.Right(1), "");
  EXPECT_EQ(text.Mid(1), "\xA5\x5C\xBB\x5C");
  EXPECT_EQ(text.Mid(1, 3), "\xA5\x5C");
  EXPECT_EQ(text.Mid(1, 4), "\xA5\x5C");
  EXPECT_EQ(text.Mid(1, 1), "");
  EXPECT_EQ(text.Mid(2, 2), "\xA5\x5C");
}

TEST(CStringSearch, WholeTextCutOutIsShared) {
  const CString text("2330.TW");
  const StorageCount storage;
  EXPECT_EQ(text.Left(7).GetString(), text.GetString());
  EXPECT_EQ(text.Mid(0).GetString(), text.GetString());
  EXPECT_EQ(text.SpanExcluding(",").GetString(), text.GetString());
  EXPECT_EQ(storage.Taken(), 0);
}

TEST(CStringSearch, SpansGoByWholeCharacters) {
  EXPECT_EQ(CString("2330.TW").SpanIncluding("0123456789"), "2330");
  EXPECT_EQ(CString("2330.TW").SpanExcluding("."), "2330");
  EXPECT_EQ(CString("2330").SpanIncluding(""), "");
  EXPECT_EQ(CString("2330").SpanExcluding(nullptr), "2330");
  EXPECT_EQ(CString("\xB3\x5C\\x").SpanExcluding("\\"), "\xB3\x5C");
  EXPECT_EQ(CString("\xB3\x5C\xA5\x5Cx").SpanIncluding("\xA5\x5C\xB3\x5C"), "\xB3\x5C\xA5\x5C");
  EXPECT_EQ(CString("\xB3\x5C").SpanIncluding("\xB3\\"), "\xB3\x5C") << "the same two bytes";
  EXPECT_EQ(CString("\xA4\x5C").SpanIncluding("\xB3\\"), "");
}

namespace {

std::vector<CString> Tokens(const CString& text, const char* separators) {
  std::vector<CString> tokens;
  int start = 0;
  for (CString token = text.Tokenize(separators, start); start >= 0;
       token = text.Tokenize(separators, start))
    tokens.push_back(token);
  return tokens;
}

} // namespace

TEST(CStringSearch, TokenizePassesOverEmptyPieces) {
  EXPECT_EQ(Tokens("a,b;c", ",;"), (std::vector<CString>{"a", "b", "c"}));
  EXPECT_EQ(Tokens(",,a,,b,,", ","), (std::vector<CString>{"a", "b"}));
  EXPECT_EQ(Tokens("", ","), std::vector<CString>());
  EXPECT_EQ(Tokens(",,,", ","), std::vector<CString>());
  EXPECT_EQ(Tokens("abc", ""), std::vector<CString>{"abc"});
  EXPECT_EQ(Tokens("\xA4|x|y", "|"), (std::vector<CString>{"\xA4|x", "y"}));
}

TEST(CStringSearch, TokenizeStaysAtItsEnd) {
  const CString text("a,b");
  int start = 99;
  EXPECT_EQ(text.Tokenize(",", start), "");
  EXPECT_EQ(start, -1);
  EXPECT_EQ(text.Tokenize(",", start), "");
  EXPECT_EQ(start, -1);
}

TEST(CStringSearch, HashIsThatOfTheCharacters) {
  for (const char* text : {"", "a", "2330.TW", "TXO18000A8.TF", "12345678", kBackslashTrails})
    EXPECT_EQ(tq::HashKey(CString(text)), tq::HashKey(text)) << text;
  EXPECT_EQ(std::hash<CString>()("2330.TW"), tq::HashKey("2330.TW"));
  EXPECT_NE(tq::HashKey("2330.TW"), tq::HashKey("2331.TW"));
  const char* const none = nullptr;
  EXPECT_EQ(tq::HashKey(none), tq::HashKey(""));
}
