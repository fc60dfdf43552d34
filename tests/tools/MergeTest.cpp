// Merge and import: no list is lost, and each has an identifier and a name of its own.
#include "tests/tools/ToolTest.h"

namespace {

class ListsMerge : public ToolTest {
protected:
  // The files, each with these lists, merged.
  std::string Merge(const std::vector<std::string>& files) {
    std::vector<std::string> words{"merge", "-o", "-"};
    for (std::size_t i = 0; i < files.size(); ++i)
      words.push_back(Put(std::to_string(i) + ".xml", ListFile("big5", 0, files[i])));
    code_ = Run(words);
    return streams.out;
  }

  int code_ = -1;
};

TEST_F(ListsMerge, ListsOfBothFilesAreThereInTheirOrder) {
  EXPECT_EQ(Merge({ListLine("1", "a", "x"), ListLine("2", "b", "y")}),
            ListFile("big5", 0, ListLine("1", "a", "x") + ListLine("2", "b", "y")));
  EXPECT_EQ(code_, 0);
}

TEST_F(ListsMerge, TheSameListIsThereOnce) {
  EXPECT_EQ(Merge({ListLine("id", "a", "x"), ListLine("ID", "a", "x")}),
            ListFile("big5", 0, ListLine("id", "a", "x")));
  EXPECT_EQ(code_, 1);
}

TEST_F(ListsMerge, AnotherListOfAnIdentifierGetsANewOneThatDependsOnItsContents) {
  const std::string merged = Merge({ListLine("1", "a", "x"), ListLine("1", "b", "y")});
  EXPECT_EQ(code_, 1);
  const std::size_t second = merged.find("\t<List ID='", merged.find("\t<List") + 1) + 11;
  const std::string id = merged.substr(second, 36);
  EXPECT_EQ(id[8], '-');
  EXPECT_EQ(merged, ListFile("big5", 0, ListLine("1", "a", "x") + ListLine(id, "b", "y")));
  EXPECT_EQ(Merge({ListLine("1", "a", "x"), ListLine("1", "b", "y")}), merged);
}

TEST_F(ListsMerge, AListThatGotANewIdentifierIsKnownAgain) {
  const std::string once = Merge({ListLine("1", "a", "x"), ListLine("1", "b", "y")});
  EXPECT_EQ(Merge({ListLine("1", "a", "x"), ListLine("1", "b", "y"), ListLine("1", "b", "y")}),
            once);
}

TEST_F(ListsMerge, ANameThatAListOfAnotherFileHasGetsANumber) {
  EXPECT_EQ(
      Merge({ListLine("1", "a", "x"), ListLine("2", "A", "y"), ListLine("3", "a", "z")}),
      ListFile("big5", 0,
               ListLine("1", "a", "x") + ListLine("2", "A(1)", "y") + ListLine("3", "a(2)", "z")));
  EXPECT_EQ(code_, 1);
}

TEST_F(ListsMerge, TheListShownFirstIsThatOfTheFirstFile) {
  Put("a.xml", ListFile("big5", 1, ListLine("1", "a", "x") + ListLine("2", "b", "y")));
  Put("b.xml", ListFile("big5", 0, ListLine("3", "c", "z")));
  EXPECT_EQ(Run({"merge", Path("b.xml"), Path("a.xml"), "-o", "-"}), 0);
  EXPECT_NE(streams.out.find("DefaultIdx='0'"), std::string::npos);
  EXPECT_EQ(Run({"merge", Path("a.xml"), Path("b.xml"), "-o", "-"}), 0);
  EXPECT_NE(streams.out.find("DefaultIdx='1'"), std::string::npos);
}

TEST_F(ListsMerge, CharactersThatUsersDefinedStayInTheirEncoding) {
  EXPECT_EQ(Merge({ListLine("1", "\xFA\x40", "x"), ListLine("2", "\xFA\x41", "y")}),
            ListFile("big5", 0, ListLine("1", "\xFA\x40", "x") + ListLine("2", "\xFA\x41", "y")));
  EXPECT_EQ(code_, 0) << streams.err;
}

TEST_F(ListsMerge, ALongNameIsCutAtAWholeCharacterAsATerminalKeepsIt) {
  std::string name;
  for (int i = 0; i < 33; ++i)
    name += "許";
  Put("a.txt", "# List: x" + name + "\n2330.TW\n");
  EXPECT_EQ(Run({"import", Path("a.txt"), "-o", "-"}), 1);
  EXPECT_NE(streams.out.find("Name='x" + name.substr(0, 31 * 3) + "' "), std::string::npos)
      << streams.out;
}

class ListsImport : public ToolTest {};

TEST_F(ListsImport, PlainTextIsAListOfTheFilesName) {
  Put("watch.txt",
      "\xEF\xBB\xBF# from another program\r\n2330.TW\r\n### Funds\r\n\r\n0050.TW, 0056.TW");
  EXPECT_EQ(Run({"import", Path("watch.txt"), "-o", "-"}), 0);
  EXPECT_NE(streams.out.find(" Name='watch' Value='2330.TW,Funds:,0050.TW,0056.TW' Flag='0'/>"),
            std::string::npos)
      << streams.out;
}

TEST_F(ListsImport, AnIdThatTheTerminalTakesForAHeadingIsAFinding) {
  EXPECT_EQ(Run({"import", "-", "-o", "-"}, "A\nNASDAQ:B\n"), 1);
  EXPECT_NE(streams.err.find("standard input:2:1: the terminal takes an id with \":\""),
            std::string::npos)
      << streams.err;
}

TEST_F(ListsImport, CsvTakesItsColumnsByName) {
  Put("a.csv", "note,symbol,list_name\r\n\"x,\n\"\"y\"\"\",2330.TW,a\r\nz,0050.TW,a\r\n");
  EXPECT_EQ(Run({"import", Path("a.csv"), "-o", "-"}), 0);
  EXPECT_NE(streams.out.find(" Name='a' Value='2330.TW,0050.TW' "), std::string::npos)
      << streams.out;
}

TEST_F(ListsImport, CsvWithoutSymbolsOrWithAnOpenQuoteIsRefused) {
  EXPECT_EQ(Run({"import", "--from", "csv", "-", "-o", Path("b.xml")}, "code,name\n1,2\n"), 1);
  EXPECT_NE(streams.err.find("standard input:1:1: no column is called symbol"), std::string::npos)
      << streams.err;
  EXPECT_EQ(Run({"import", "--from", "csv", "-", "-o", Path("b.xml")}, "symbol\na\n\"b\nc"), 1);
  EXPECT_NE(streams.err.find("standard input:3:1: no CSV"), std::string::npos) << streams.err;
  EXPECT_EQ(CountFiles(), 0u);
}

TEST_F(ListsImport, ACsvRecordOfAnotherLengthIsAFindingInItsLine) {
  EXPECT_EQ(Run({"import", "--from", "csv", "-", "-o", "-"},
                "symbol,list_name\nA,\"x\n\"\nB\nC,y,z\nD,\"x\n\"\n"),
            1);
  EXPECT_NE(streams.err.find("standard input:4:1: too few columns"), std::string::npos)
      << streams.err;
  EXPECT_NE(streams.err.find("standard input:5:1: too many columns"), std::string::npos);
  EXPECT_NE(streams.out.find(" Name='x ' Value='A,D' "), std::string::npos) << streams.out;
}

TEST_F(ListsImport, BrokenJsonIsRefusedWithItsPlace) {
  EXPECT_EQ(Run({"import", "-", "-o", Path("b.xml")}, "{\"lists\": [\n{\"id\": }]}"), 1);
  EXPECT_NE(streams.err.find("standard input:2:"), std::string::npos) << streams.err;
  EXPECT_EQ(Run({"import", "-", "-o", Path("b.xml")}, "{\"list\": []}"), 1);
  EXPECT_EQ(CountFiles(), 0u);
}

TEST_F(ListsImport, JsonOfOtherProgramsIsTakenWithWhatItHasBesides) {
  EXPECT_EQ(Run({"import", "-", "-o", "-"},
                "{\"version\": [1, {\"lists\": []}], \"lists\": [{\"name\": \"a\", \"colour\": 3,"
                " \"symbols\": [\"A\", {\"heading\": \"H\"}, \"B,C\"]}]}"),
            0)
      << streams.err;
  EXPECT_NE(streams.out.find(" Name='a' Value='A,H:,B,C' "), std::string::npos) << streams.out;
}

// A symbol string has commas between its entries only.
TEST_F(ListsImport, ACommaInAHeadingBecomesABlankAndIsAFinding) {
  const struct {
    const char* format;
    const char* text;
    const char* place;
  } files[] = {
      {"csv", "symbol,heading\nA,\n,\"Funds, bonds\"\nB,\n", ":3:1: "},
      {"json", "{\"lists\": [{\"symbols\": [\"A\",\n{\"heading\": \"Funds, bonds\"}, \"B\"]}]}",
       ":2:27: "},
      {"text", "A\n### Funds, bonds\nB\n", ":2:1: "},
  };
  for (const auto& file : files) {
    EXPECT_EQ(Run({"import", "--from", file.format, "-", "-o", "-"}, file.text), 1);
    EXPECT_EQ(streams.err, std::string("standard input") + file.place +
                               "a comma in a heading; a blank stands for it\n");
    EXPECT_NE(streams.out.find("Value='A,Funds  bonds:,B'"), std::string::npos) << streams.out;
  }
}

TEST_F(ListsImport, AHeadingWithoutACommaIsNoFinding) {
  EXPECT_EQ(
      Run({"import", "--from", "csv", "-", "-o", "-"}, "symbol,heading\n\"A,B\",\n,Funds; bonds\n"),
      0)
      << streams.err;
  EXPECT_NE(streams.out.find("Value='A,B,Funds; bonds:'"), std::string::npos) << streams.out;
}

TEST_F(ListsImport, BytesThatAreNoTextAreFindings) {
  EXPECT_EQ(Run({"import", "-", "-o", "-"}, "A\n\xFF\n"), 1);
  EXPECT_NE(streams.err.find("standard input:2:1: no character of utf-8"), std::string::npos)
      << streams.err;
}

TEST_F(ListsImport, TextOfAnotherEncodingIsTakenOnDemand) {
  EXPECT_EQ(Run({"import", "--encoding", "big5", "--list-encoding", "gb2312", "-", "-o", "-"},
                "### \xB3\x5C\n"),
            0);
  EXPECT_NE(streams.out.find("Value='\xD4\x53:'"), std::string::npos) << streams.out;
}

} // namespace
