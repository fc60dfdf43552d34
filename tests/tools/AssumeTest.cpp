// Text of list files that may be Big5 as well as GBK: it is read as the user says, where nothing in
// the file tells.
#include "tests/tools/ToolTest.h"

namespace {

// Two usual characters in either encoding.
constexpr char kEither[] = "\xB2\xBC\xB3\xA1";
constexpr char kEitherInBig5[] = "票部";
constexpr char kEitherInGbk[] = "布场";

// Hardly anything in the other one; about as sure as each other.
constexpr char kBig5[] = "\xB3\x5C\xA5\x5C\xBB\x5C\xB9\x71\xA4\x6C\xAA\xD1"; // 許功蓋電子股
constexpr char kGbk[] =
    "\xD2\xF8\xD0\xD0\xD3\xEB\xD6\xA4\xC8\xAF\xD2\xF8\xD0\xD0\xB9\xC9"; // 银行与证券银行股

class ListsAssume : public ToolTest {
protected:
  static std::string Undeclared(const std::string& lists) {
    const std::string file = ListFile("big5", 0, lists);
    return file.substr(file.find('\n') + 1);
  }
  // The names of the lists as export prints them, joined by "|".
  std::string Names(const std::string& file, const std::vector<std::string>& options) {
    std::vector<std::string> words{"export", "-"};
    words.insert(words.end(), options.begin(), options.end());
    Run(words, file);
    const std::string mark = "# List: ";
    std::string names;
    for (std::size_t at = streams.out.find(mark); at != std::string::npos;
         at = streams.out.find(mark, at + 1)) {
      const std::size_t begin = at + mark.size();
      names += (names.empty() ? "" : "|") +
               streams.out.substr(begin, streams.out.find('\n', begin) - begin);
    }
    return names;
  }
};

TEST_F(ListsAssume, AFileWithoutADeclarationIsReadAsTold) {
  const std::string file = Undeclared(ListLine("1", kEither, "2330.TW"));
  EXPECT_EQ(Names(file, {"--assume", "big5"}), kEitherInBig5);
  EXPECT_EQ(Names(file, {"--assume", "gb2312"}), kEitherInGbk);
  EXPECT_EQ(Names(file, {}), kEitherInBig5);
}

TEST_F(ListsAssume, OfTwoEncodingsEachIsReadAndWhatIsEitherAsTold) {
  const std::string file = Undeclared(ListLine("1", kBig5, "") + ListLine("2", kGbk, "") +
                                      ListLine("3", kEither, "2330.TW"));
  const std::string sure = "許功蓋電子股|银行与证券银行股|";
  EXPECT_EQ(Names(file, {"--assume", "big5"}), sure + kEitherInBig5);
  EXPECT_EQ(Names(file, {"--assume", "gb2312"}), sure + kEitherInGbk);
}

TEST_F(ListsAssume, WhatTellsByItselfIsNotTakenForAnythingElse) {
  const std::string big5 = Undeclared(ListLine("1", kBig5, ""));
  const std::string gbk = Undeclared(ListLine("1", kGbk, ""));
  for (const char* encoding : {"big5", "gb2312"}) {
    EXPECT_EQ(Names(big5, {"--assume", encoding}), "許功蓋電子股");
    EXPECT_EQ(Names(gbk, {"--assume", encoding}), "银行与证券银行股");
    EXPECT_EQ(Names(ListFile("big5", 0, ListLine("1", kEither, "")), {"--assume", encoding}),
              kEitherInBig5);
    EXPECT_EQ(Names(ListFile("gb2312", 0, ListLine("1", kEither, "")), {"--assume", encoding}),
              kEitherInGbk);
  }
}

TEST_F(ListsAssume, ARepairedFileNamesWhatItWasTakenFor) {
  const std::string lists = ListLine("1", kEither, "2330.TW");
  for (const std::string encoding : {"big5", "gb2312"}) {
    EXPECT_EQ(Run({"repair", "-", "-o", "-", "--assume", encoding}, Undeclared(lists)), 1);
    EXPECT_EQ(streams.out, ListFile(encoding, 0, lists));
  }
}

TEST_F(ListsAssume, AConversionAndAMergeReadItSoToo) {
  const std::string file = Undeclared(ListLine("1", kEither, "2330.TW"));
  for (const bool big5 : {true, false}) {
    const std::string encoding = big5 ? "big5" : "gb2312";
    const std::string name = big5 ? kEitherInBig5 : kEitherInGbk;
    const std::string wanted = ListFile("utf-8", 0, ListLine("1", name, "2330.TW"));
    Run({"convert", "-", "--to", "utf-8", "-o", "-", "--assume", encoding}, file);
    EXPECT_EQ(streams.out, wanted);
    Run({"merge", "-", "--list-encoding", "utf-8", "-o", "-", "--assume", encoding}, file);
    EXPECT_EQ(streams.out, wanted);
  }
}

} // namespace
