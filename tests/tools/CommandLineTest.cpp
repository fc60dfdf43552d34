// The words, the exit codes, and streams that fail.
#include "tests/tools/ToolTest.h"

#include "tools/tqlists/files/Progress.h"

#include <thread>

namespace {

class ListsWords : public ToolTest {};

const std::string kOneList = ListFile("utf-8", 0, ListLine("1", "a", "A"));

TEST_F(ListsWords, EachVerbHasHelp) {
  for (const char* verb :
       {"show", "check", "repair", "convert", "diff", "merge", "export", "import"}) {
    EXPECT_EQ(Run({verb, "--help"}), 0) << verb;
    EXPECT_NE(streams.out.find("Exit codes"), std::string::npos) << verb;
    EXPECT_NE(streams.out.find(verb), std::string::npos) << verb;
    EXPECT_EQ(streams.err, "") << verb;
  }
}

TEST_F(ListsWords, WrongWordsAreUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"mend", "a"},
      {"show"},
      {"show", "--colour", "a"},
      {"check", "--kind", "other", "a"},
      {"repair", "a"},
      {"convert", "a", "-o", "b"},
      {"convert", "a", "-o", "b", "--to", "latin1"},
      {"diff", "a"},
      {"diff", "a", "b", "c"},
      {"export", "a", "-o", "b", "--directory", "c"}};
  for (const std::vector<std::string>& words : wrong) {
    EXPECT_EQ(Run(words), 2) << testing::PrintToString(words);
    EXPECT_EQ(streams.out, "");
    EXPECT_NE(streams.err, "");
  }
}

TEST_F(ListsWords, StandardInputIsReadOnceOnly) {
  EXPECT_EQ(Run({"diff", "-", "-"}, kOneList), 2);
}

TEST_F(ListsWords, AReaderThatWentAwayEndsTheProgramWithoutAWord) {
  const std::string path = Put("a.xml", kOneList);
  streams.answer = tqlists::Written::Closed;
  EXPECT_EQ(tqlists::Run({"show", path}, streams), 3);
  EXPECT_EQ(streams.err, "");
}

TEST_F(ListsWords, OutputThatCannotBeWrittenIsSaid) {
  const std::string path = Put("a.xml", kOneList);
  streams.answer = tqlists::Written::Failed;
  EXPECT_EQ(tqlists::Run({"show", path}, streams), 3);
  EXPECT_NE(streams.err.find("standard output cannot be written"), std::string::npos);
}

TEST_F(ListsWords, ADirectoryThatIsNotThereIsTrouble) {
  const std::string path = Put("a.xml", kOneList);
  EXPECT_EQ(Run({"repair", path, "-o", Path("none/b.xml")}), 3);
  EXPECT_NE(streams.err.find("cannot be written"), std::string::npos) << streams.err;
}

TEST_F(ListsWords, ProgressIsShownToAPersonAfterASecondAndErased) {
  for (const bool watched : {false, true}) {
    streams = {};
    streams.watched = watched;
    {
      tqlists::Progress progress("a.xml", 200, streams);
      progress.At(1);
      EXPECT_EQ(streams.err, "");
      std::this_thread::sleep_for(std::chrono::milliseconds(1010));
      progress.At(102);
      EXPECT_EQ(streams.err, watched ? "\ra.xml: 51 %" : "");
    }
    EXPECT_EQ(streams.err, watched ? "\ra.xml: 51 %\r           \r" : "");
  }
}

} // namespace
