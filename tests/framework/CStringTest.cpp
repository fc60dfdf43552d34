// Construction, assignment, sharing and joining of CString.
#include "platform/framework/CString.h"

#include <string>
#include <thread>
#include <vector>

#include "tests/framework/FrameworkTest.h"

TEST(CString, IsEmptyWhenMadeOfNothing) {
  const char* const none = nullptr;
  for (const CString& text : {CString(), CString(""), CString(none), CString("abc", 0),
                              CString("abc", -1), CString('x', 0), CString('x', -5)}) {
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_STREQ(text, "");
  }
}

TEST(CString, IsMadeOfCharactersPartsAndRepeats) {
  EXPECT_EQ(CString("2330.TW"), "2330.TW");
  EXPECT_EQ(CString("2330.TW", 4), "2330");
  EXPECT_EQ(CString('x', 3), "xxx");
  EXPECT_EQ(CString('x'), "x");
  EXPECT_EQ(CString("a\0b", 3).GetLength(), 3);
}

TEST(CString, CopySharesAndAllocatesNothing) {
  const CString first("a text that is shared");
  const StorageCount storage;
  CString second, third;
  second = first;
  third = second;
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(first.GetString(), third.GetString());
}

TEST(CString, ChangingACopyLeavesTheOriginal) {
  const CString original("2330.tw");
  const auto changed = [&](auto change) {
    CString copy(original);
    change(copy);
    return copy;
  };
  EXPECT_EQ(changed([](CString& s) { s.SetAt(0, 'X'); }), "X330.tw");
  EXPECT_EQ(changed([](CString& s) { s += ",x"; }), "2330.tw,x");
  EXPECT_EQ(changed([](CString& s) { s.MakeUpper(); }), "2330.TW");
  EXPECT_EQ(changed([](CString& s) { s.Replace('3', '4'); }), "2440.tw");
  EXPECT_EQ(changed([](CString& s) { s.Delete(0, 2); }), "30.tw");
  EXPECT_EQ(changed([](CString& s) { s.Remove('.'); }), "2330tw");
  EXPECT_EQ(changed([](CString& s) { s.Truncate(4); }), "2330");
  EXPECT_EQ(changed([](CString& s) { s.TrimLeft('2'); }), "330.tw");
  EXPECT_EQ(changed([](CString& s) {
              s.GetBuffer()[0] = 'Y';
              s.ReleaseBuffer();
            }),
            "Y330.tw");
  EXPECT_EQ(changed([](CString& s) { s = "x"; }), "x");
  EXPECT_EQ(changed([](CString& s) { s.Empty(); }), "");
  EXPECT_EQ(original, "2330.tw");
}

TEST(CString, MovedFromStringIsEmptyAndUsable) {
  CString from("abc");
  CString to(std::move(from));
  EXPECT_EQ(to, "abc");
  EXPECT_TRUE(from.IsEmpty()); // NOLINT(bugprone-use-after-move): the contract
  from = "again";
  to = std::move(from);
  EXPECT_EQ(to, "again");
  EXPECT_TRUE(from.IsEmpty()); // NOLINT(bugprone-use-after-move): the contract
}

TEST(CString, AssignmentToItselfAndOfItsOwnPartIsSafe) {
  CString text("2330.TW");
  const CString& same = text;
  text = same;
  EXPECT_EQ(text, "2330.TW");
  CString& alias = text;
  text = std::move(alias);
  EXPECT_EQ(text, "2330.TW");
  text = text.GetString() + 5;
  EXPECT_EQ(text, "TW");
  const CString shared = text = "2330.TW";
  text = text.GetString() + 5;
  EXPECT_EQ(text, "TW");
  EXPECT_EQ(shared, "2330.TW");
}

TEST(CString, AssignmentIntoOwnRoomAllocatesNothing) {
  CString text("a long enough text");
  const StorageCount storage;
  text = "short";
  text = "";
  text = 'c';
  text = "middle size";
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(text, "middle size");
}

TEST(CString, AppendsTextCharactersAndStrings) {
  CString text;
  text += "23";
  text += '3';
  text += CString("0.");
  text.Append("TWxyz", 2);
  const char* const none = nullptr;
  text += none;
  text += CString();
  text.Append("x", -1);
  EXPECT_EQ(text, "2330.TW");
}

TEST(CString, AppendingItselfOrItsOwnPartIsSafe) {
  for (const int room : {0, 100}) {
    CString text("abc");
    text.Preallocate(room);
    text += text;
    EXPECT_EQ(text, "abcabc");
    text += text.GetString() + 4;
    EXPECT_EQ(text, "abcabcbc");
    text.Insert(1, text.GetString() + 5);
    EXPECT_EQ(text, "acbcbcabcbc");
    text.Replace("bc", text);
    EXPECT_EQ(text.GetLength(), 3 + 4 * 11);
  }
}

TEST(CString, ManyAppendsAreLinear) {
  const StorageCount storage;
  CString text;
  for (int i = 0; i < 100000; ++i)
    text += "id";
  EXPECT_EQ(text.GetLength(), 200000);
  EXPECT_LT(storage.Taken(), 60);
}

TEST(CString, PreallocatedRoomTakesAppendsWithoutAllocating) {
  CString text;
  text.Preallocate(1000);
  const StorageCount storage;
  for (int i = 0; i < 1000; ++i)
    text += 'x';
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(text, CString('x', 1000));
}

TEST(CString, SumsOfAllMixes) {
  const CString a("a"), b("b"), none;
  EXPECT_EQ(a + b, "ab");
  EXPECT_EQ(a + "b", "ab");
  EXPECT_EQ("a" + b, "ab");
  EXPECT_EQ(a + 'b', "ab");
  EXPECT_EQ('a' + b, "ab");
  EXPECT_EQ(a + none, "a");
  EXPECT_EQ(none + b, "b");
  EXPECT_EQ(a + "." + b + ',' + a + (b + "!"), "a.b,ab!");
  const char* const null = nullptr;
  EXPECT_EQ(a + null, "a");
  EXPECT_EQ(a, "a");
}

TEST(CString, ComparesInAllMixesByUnsignedBytes) {
  const CString a("a"), b("b"), high("\xB3\x5C");
  EXPECT_TRUE(a == "a" && "a" == a && a == CString("a"));
  EXPECT_TRUE(a != "b" && "b" != a && a != b);
  EXPECT_TRUE(a < b && a < "b" && "a" < b && a <= "a" && "a" <= a && a <= a);
  EXPECT_TRUE(b > a && b > "a" && "b" > a && a >= "a" && "a" >= a && b >= a);
  EXPECT_TRUE(a < high) << "bytes are unsigned";
  EXPECT_TRUE(a < "ab" && CString("ab") > a);
  const char* const none = nullptr;
  EXPECT_TRUE(CString() == none && a != none && a > none);
  EXPECT_EQ(a.Compare("a"), 0);
  EXPECT_LT(a.Compare("b"), 0);
  EXPECT_GT(b.Compare("a"), 0);
  EXPECT_EQ(CString("2330.tw").CompareNoCase("2330.TW"), 0);
  EXPECT_NE(CString("\xA4\x41").CompareNoCase("\xA4\x61"), 0);
}

TEST(CString, TextBehindANulCountsInComparisons) {
  const CString a("x\0a", 3), b("x\0b", 3);
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(a < b);
  EXPECT_FALSE(a == "x");
  EXPECT_TRUE(a > "x");
}

TEST(CString, BytesOutsideOfTheTextAreNul) {
  CString text("abc");
  EXPECT_EQ(text[0], 'a');
  EXPECT_EQ(text.GetAt(2), 'c');
  EXPECT_EQ(text[3], '\0');
  EXPECT_EQ(text[-1], '\0');
  EXPECT_EQ(text[1000], '\0');
  text.SetAt(3, 'x');
  text.SetAt(-1, 'x');
  EXPECT_EQ(text, "abc");
}

TEST(CString, BufferIsWrittenAndReleased) {
  CString text;
  std::memcpy(text.GetBuffer(10), "2330\0rest", 9);
  text.ReleaseBuffer();
  EXPECT_EQ(text, "2330");
  text.GetBuffer(10)[4] = '.';
  text.ReleaseBuffer(5);
  EXPECT_EQ(text, "2330.");
  text.GetBuffer(0);
  text.ReleaseBuffer(1 << 20); // behind the buffer: clamped
  EXPECT_LT(text.GetLength(), 100);
  EXPECT_EQ(std::string(CString("ab").GetBufferSetLength(4), 4), std::string("ab\0\0", 4));
}

TEST(CString, BufferOfAnEmptyStringIsNotSharedByOtherEmptyStrings) {
  CString text;
  text.GetBuffer(0)[0] = '\0';
  EXPECT_NE(text.GetString(), CString().GetString());
  text.ReleaseBuffer();
  EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, HugeTextsKeepEveryByte) {
  constexpr int size = 64 << 20;
  CString text('x', size);
  text += "end";
  EXPECT_EQ(text.GetLength(), size + 3);
  EXPECT_EQ(text.Right(4), "xend");
  EXPECT_EQ(text.Find("end"), size);
}

TEST(CString, SharesCountRightAcrossThreads) {
  const CString shared("a text that many threads share and release");
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&shared] {
      for (int i = 0; i < 20000; ++i) {
        CString copy;
        copy = shared;
        CString changed(copy);
        changed.SetAt(0, 'A');
      }
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(shared, "a text that many threads share and release");
}
