// Findings of `check`, with their places and the exit code.
#include "tests/tools/ToolTest.h"

namespace {

class ListsCheck : public ToolTest {};

TEST_F(ListsCheck, ASoundFileHasNoFindingAndTheLastLineSaysThatItLoads) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", "a", "2330.TW")));
  EXPECT_EQ(Run({"check", path}), 0);
  EXPECT_EQ(streams.out, path + ": 1 lists in big5, which the library loads\n");
  EXPECT_EQ(streams.err, "");
}

TEST_F(ListsCheck, AStrayAmpersandIsToldWithLineAndColumn) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", "a&b", "2330.TW")));
  EXPECT_EQ(Run({"check", path}), 1);
  EXPECT_NE(streams.out.find(path + ":4:22: an ampersand"), std::string::npos) << streams.out;
  EXPECT_NE(streams.out.find("the library does not load it as it stands"), std::string::npos);
}

TEST_F(ListsCheck, SeveralFilesAreToldOneAfterTheOther) {
  const std::string good = Put("a.xml", ListFile("big5", 0, ListLine("1", "a", "2330.TW")));
  const std::string cut = Put("b.xml", "<?xml version='1.0' encoding='big5' ?>\n<Result>\n");
  EXPECT_EQ(Run({"check", good, cut}), 1);
  EXPECT_NE(streams.out.find(good + ": 1 lists"), std::string::npos) << streams.out;
  EXPECT_NE(streams.out.find(cut + ":"), std::string::npos) << streams.out;
}

TEST_F(ListsCheck, TheRootTellsWhatAFileIs) {
  const std::string trading = "<?xml version='1.0' encoding='big5' ?>\n<TSList>\n</TSList>";
  EXPECT_EQ(Run({"check", "-"}, trading), 0);
  EXPECT_EQ(streams.out, "standard input: 0 trading systems\n");
  const std::string import = "<HaldeUserList><List><IDs>2330.TW</IDs></List></HaldeUserList>";
  EXPECT_EQ(Run({"check", "-"}, import), 0);
  EXPECT_EQ(streams.out, "standard input: 1 lists, which the library imports\n");
}

TEST_F(ListsCheck, AKindThatIsNamedIsNotGuessed) {
  EXPECT_EQ(Run({"check", "--kind", "import", "-"}, "<Other/>"), 1);
  EXPECT_NE(streams.out.find("another root than HaldeUserList"), std::string::npos) << streams.out;
}

TEST_F(ListsCheck, NodesOfAnImportFileWithoutIdsAreFindings) {
  const std::string import = "<HaldeUserList>\n<List><IDs> </IDs></List>\n<List/>\n"
                             "<List><X/><IDs>1</IDs><IDs/></List>\n</HaldeUserList>";
  EXPECT_EQ(Run({"check", "-"}, import), 1);
  EXPECT_EQ(streams.out, "standard input:2:1: a node without IDs: it gives no list\n"
                         "standard input:3:1: a node without IDs: it gives no list\n"
                         "standard input: 1 lists, which the library imports\n");
}

TEST_F(ListsCheck, WhatTheLibraryDoesNotWriteIntoTheTradingFileIsAFinding) {
  const std::string trading =
      "<TSList>\n<TS ID='' Name='a'>\n<Account ID='1' DispID='2' TqsAccType='x' SymbolList=''/>\n"
      "</TS>\n<Other/>\n</TSList>";
  EXPECT_EQ(Run({"check", "-"}, trading), 1);
  EXPECT_EQ(streams.out,
            "standard input:2:1: no ID\n"
            "standard input:3:1: TqsAccType is no number\n"
            "standard input:5:1: an element that the library does not write here: Other\n"
            "standard input: 1 trading systems\n");
}

TEST_F(ListsCheck, ABrokenDocumentIsNotLookedIntoFurther) {
  EXPECT_EQ(Run({"check", "-"}, "<TSList>\n<TS ID = 'a' Name = 'b&c' >\n</TS></TSList>"), 1);
  EXPECT_NE(streams.out.find("standard input:2:"), std::string::npos) << streams.out;
  EXPECT_NE(streams.out.find("no well-formed document"), std::string::npos) << streams.out;
}

TEST_F(ListsCheck, AMissingFileIsNoFinding) {
  EXPECT_EQ(Run({"check", Path("none.xml")}), 3);
  EXPECT_NE(streams.err.find("none.xml: cannot be read"), std::string::npos) << streams.err;
}

} // namespace
