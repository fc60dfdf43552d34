// Replacing, inserting, removing, trimming, case and formatting of CString.
#include "platform/framework/CString.h"

#include <climits>
#include <string>

#include "tests/framework/FrameworkTest.h"

TEST(CStringEdit, ReplacesCharacters) {
  CString text("a/b/c");
  EXPECT_EQ(text.Replace('/', '\\'), 2);
  EXPECT_EQ(text, "a\\b\\c");
  EXPECT_EQ(text.Replace('x', 'y'), 0);
  EXPECT_EQ(text.Replace('a', 'a'), 0);
}

TEST(CStringEdit, ReplacesTextsOfAnyLength) {
  CString text("2330.TW,2317.TW");
  EXPECT_EQ(text.Replace("TW", "TWSE"), 2);
  EXPECT_EQ(text, "2330.TWSE,2317.TWSE");
  EXPECT_EQ(text.Replace(".TWSE", nullptr), 2);
  EXPECT_EQ(text, "2330,2317");
  EXPECT_EQ(text.Replace("", "x"), 0);
  EXPECT_EQ(text.Replace(nullptr, "x"), 0);
  CString runs("aaaa");
  EXPECT_EQ(runs.Replace("aa", "a"), 2);
  EXPECT_EQ(runs, "aa");
  EXPECT_EQ(runs.Replace("aa", ""), 1);
  EXPECT_TRUE(runs.IsEmpty());
}

TEST(CStringEdit, ReplacingLeavesTrailBytes) {
  CString text("\xB3\x5C\\\xA5\x5C");
  EXPECT_EQ(text.Replace('\\', '/'), 1);
  EXPECT_EQ(text, "\xB3\x5C/\xA5\x5C");
  EXPECT_EQ(text.Replace("\\", "x"), 0);
  EXPECT_EQ(text.Replace("\xA5\x5C", "\xB3\x5C"), 1);
  EXPECT_EQ(text, "\xB3\x5C/\xB3\x5C");
}

TEST(CStringEdit, WithoutAMatchTheTextStaysShared) {
  const CString original("2330.TW");
  CString text(original);
  const StorageCount storage;
  text.Replace('x', 'y');
  text.Replace("xx", "y");
  text.Remove('x');
  text.Trim();
  text.MakeUpper();
  text.Truncate(99);
  text.Delete(99);
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(text.GetString(), original.GetString());
}

TEST(CStringEdit, RemovesACharacterButNoTrailByte) {
  CString text("\\\xB3\x5C\\a\\");
  EXPECT_EQ(text.Remove('\\'), 3);
  EXPECT_EQ(text, "\xB3\x5C"
                  "a");
  EXPECT_EQ(text.Remove('x'), 0);
}

TEST(CStringEdit, InsertsInFrontOfAWholeCharacter) {
  CString text("bd");
  EXPECT_EQ(text.Insert(1, 'c'), 3);
  EXPECT_EQ(text.Insert(-5, "a"), 4);
  EXPECT_EQ(text.Insert(99, "ef"), 6);
  EXPECT_EQ(text, "abcdef");
  EXPECT_EQ(text.Insert(2, ""), 6);
  EXPECT_EQ(text.Insert(2, '\0'), 6);
  CString wide("x\xB3\x5C");
  EXPECT_EQ(wide.Insert(2, '|'), 4);
  EXPECT_EQ(wide, "x|\xB3\x5C");
}

TEST(CStringEdit, DeletesWholeCharacters) {
  CString text("abcdef");
  EXPECT_EQ(text.Delete(1), 5);
  EXPECT_EQ(text, "acdef");
  EXPECT_EQ(text.Delete(3, 99), 3);
  EXPECT_EQ(text, "acd");
  EXPECT_EQ(text.Delete(3), 3);
  EXPECT_EQ(text.Delete(0, -1), 3);
  EXPECT_EQ(text.Delete(-1, 1), 2);
  EXPECT_EQ(text, "cd");
  CString wide(kBackslashTrails);
  EXPECT_EQ(wide.Delete(0, 1), 4) << "a character that loses one byte goes whole";
  EXPECT_EQ(wide, "\xA5\x5C\xBB\x5C");
  EXPECT_EQ(wide.Delete(1, 2), 0);
}

TEST(CStringEdit, TruncatesAtAWholeCharacter) {
  CString text(kBackslashTrails);
  text.Truncate(5);
  EXPECT_EQ(text, "\xB3\x5C\xA5\x5C");
  text.Truncate(-1);
  EXPECT_EQ(text, "");
}

TEST(CStringEdit, TrimsBlanksCharactersAndSets) {
  EXPECT_EQ(CString(" \t a b \r\n").Trim(), "a b");
  EXPECT_EQ(CString("  a ").TrimLeft(), "a ");
  EXPECT_EQ(CString("  a ").TrimRight(), "  a");
  EXPECT_EQ(CString(",,a,").Trim(','), "a");
  EXPECT_EQ(CString(",,a,").TrimLeft(','), "a,");
  EXPECT_EQ(CString(",,a,").TrimRight(','), ",,a");
  EXPECT_EQ(CString(";,a,;").Trim(",;"), "a");
  EXPECT_EQ(CString(" \n ").Trim(), "");
  EXPECT_EQ(CString("").Trim(), "");
  EXPECT_EQ(CString(" a ").Trim(""), " a ");
  EXPECT_EQ(CString(" a ").Trim('\0'), " a ");
}

TEST(CStringEdit, TrimmingLeavesTrailBytes) {
  EXPECT_EQ(CString("C:\\\xB3\x5C").TrimRight('\\'), "C:\\\xB3\x5C");
  EXPECT_EQ(CString("C:\\\xB3\x5C\\").TrimRight('\\'), "C:\\\xB3\x5C");
  EXPECT_EQ(CString("\xA4|").Trim("|"), "\xA4|");
  EXPECT_EQ(CString("a\xA4 ").Trim(), "a\xA4 ") << "a blank behind a lead byte is its trail";
}

TEST(CStringEdit, FullWidthBlankIsTrimmedOnlyWhenAskedFor) {
  EXPECT_EQ(CString("\xA1\x40 a\xA1\x40").Trim(), "\xA1\x40 a\xA1\x40");
  EXPECT_EQ(CString("\xA1\x40 a\xA1\x40 ").Trim("\xA1\x40 "), "a");
  EXPECT_EQ(CString("\xA1\xA1\xA1\xA1").TrimRight("\xA1\xA1"), "");
}

TEST(CStringEdit, CaseChangesLettersButNoTrailBytes) {
  CString text("2330.tw\xA4\x61z");
  text.MakeUpper();
  EXPECT_EQ(text, "2330.TW\xA4\x61Z");
  text.MakeLower();
  EXPECT_EQ(text, "2330.tw\xA4\x61z");
  EXPECT_EQ(CString("\xA4\x41").MakeLower(), "\xA4\x41");
  EXPECT_EQ(CString("a\xA4").MakeUpper(), "A\xA4");
  EXPECT_EQ(CString().MakeUpper(), "");
}

TEST(CStringEdit, UpperCasingAnUpperCaseTextAllocatesNothing) {
  const CString original("2330.TW");
  CString text(original);
  const StorageCount storage;
  text.MakeUpper();
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(text.GetString(), original.GetString());
}

TEST(CStringEdit, ReversesCharactersNotBytes) {
  EXPECT_EQ(CString("abc").MakeReverse(), "cba");
  EXPECT_EQ(CString("a\xB3\x5C\xA5\x5C").MakeReverse(), "\xA5\x5C\xB3\x5C"
                                                        "a");
  EXPECT_EQ(CString().MakeReverse(), "");
}

TEST(CStringFormat, TakesTheStandardConversions) {
  CString text;
  text.Format("%d|%05.2f|%s|%-4s|%c|%%|%08lX", -7, 1.5, "x", "ab", 'c', 0xABCDEFul);
  EXPECT_EQ(text, "-7|01.50|x|ab  |c|%|00ABCDEF");
  text.Format("%lld %zu %hhd", LLONG_MIN, size_t{7}, static_cast<signed char>(-3));
  EXPECT_EQ(text, "-9223372036854775808 7 -3");
  text.Format("%s", "");
  EXPECT_TRUE(text.IsEmpty());
}

TEST(CStringFormat, ArgumentsMayPointIntoTheString) {
  CString text("abc");
  text.Format("[%s]", text.GetString());
  EXPECT_EQ(text, "[abc]");
  text.AppendFormat("%s%d", text.GetString() + 1, 1);
  EXPECT_EQ(text, "[abc]abc]1");
}

TEST(CStringFormat, LongTextsAreWhole) {
  for (const int length : {510, 511, 512, 513, 100000}) {
    const std::string filler(static_cast<size_t>(length), 'f');
    CString text("start");
    text.Format("%s", filler.c_str());
    EXPECT_EQ(text, filler.c_str());
    text = "start";
    text.AppendFormat("%s", filler.c_str());
    EXPECT_EQ(text, ("start" + filler).c_str());
    text.Format("%s%s", text.GetString(), text.GetString());
    EXPECT_EQ(text.GetLength(), 2 * (length + 5));
  }
}

TEST(CStringFormat, IntoOwnRoomAllocatesNothing) {
  CString text("a text with enough room for it");
  const StorageCount storage;
  text.Format("%d.%s", 2330, "TW");
  text.AppendFormat(",%d", 7);
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(text, "2330.TW,7");
}
