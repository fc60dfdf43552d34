// Repair and convert: a new file of what is in another, which stays as it is.
#include "tests/tools/ToolTest.h"

namespace {

constexpr char kBig5Name[] = "\xB3\x5C\xA5\x5C\xBB\x5C"; // 許功蓋, each with a backslash behind

class ListsRepair : public ToolTest {};
class ListsConvert : public ToolTest {};

TEST_F(ListsRepair, ASoundFileComesBackByteForByte) {
  const std::string file =
      ListFile("big5", 1, ListLine("1", kBig5Name, "2330.TW") + ListLine("2", "b", ""));
  const std::string path = Put("a.xml", file);
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml")}), 0);
  EXPECT_EQ(Get("b.xml"), file);
  EXPECT_NE(streams.err.find(path + ": list 1 \"許功蓋\" 1: whole"), std::string::npos)
      << streams.err;
}

TEST_F(ListsRepair, AStrayApostropheComesBackAsAReference) {
  const std::string file = ListFile("big5", 0, ListLine("1", "a'b", "2330.TW"));
  const std::string path = Put("a.xml", file);
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml")}), 1);
  EXPECT_EQ(Get("b.xml"), ListFile("big5", 0, ListLine("1", "a&apos;b", "2330.TW")));
  EXPECT_EQ(Get("a.xml"), file) << "the old file was touched";
  EXPECT_NE(streams.err.find("list 1 \"a'b\" 1: repaired"), std::string::npos) << streams.err;
}

TEST_F(ListsRepair, WhatWasRepairedIsSoundThen) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", "a&'<b", "2330.TW")));
  ASSERT_EQ(Run({"repair", path, "-o", Path("b.xml")}), 1);
  EXPECT_EQ(Run({"check", Path("b.xml")}), 0) << streams.out;
  EXPECT_EQ(Run({"repair", Path("b.xml"), "-o", "-"}), 0);
  EXPECT_EQ(streams.out, Get("b.xml"));
}

TEST_F(ListsRepair, AFileWithoutListsGivesNoNewOne) {
  const std::string path = Put("a.xml", "nothing of the kind");
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml")}), 1);
  EXPECT_FALSE(Exists("b.xml"));
  EXPECT_EQ(CountFiles(), 1u) << "a temporary file was left";
}

TEST_F(ListsRepair, TheFileThatIsReadIsNeverWritten) {
  const std::string file = ListFile("big5", 0, ListLine("1", "a", "2330.TW"));
  const std::string path = Put("a.xml", file);
  EXPECT_EQ(Run({"repair", path, "-o", path, "--force"}), 2);
  std::filesystem::create_hard_link(path, Path("b.xml"));
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml"), "--force"}), 2);
  EXPECT_EQ(Get("a.xml"), file);
}

TEST_F(ListsRepair, AnExistingFileIsReplacedOnDemandOnly) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", "a", "2330.TW")));
  Put("b.xml", "mine");
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml")}), 2);
  EXPECT_EQ(Get("b.xml"), "mine");
  EXPECT_EQ(Run({"repair", path, "-o", Path("b.xml"), "--force"}), 0);
  EXPECT_EQ(Get("b.xml"), Get("a.xml"));
  EXPECT_EQ(CountFiles(), 2u);
}

TEST_F(ListsRepair, AnEncodingCanBeAskedFor) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", kBig5Name, "2330.TW")));
  EXPECT_EQ(Run({"repair", path, "-o", "-", "--encoding", "utf-8"}), 0);
  EXPECT_EQ(streams.out, ListFile("utf-8", 0, ListLine("1", "許功蓋", "2330.TW")));
}

TEST_F(ListsConvert, TextIsCarriedOver) {
  const std::string path = Put("a.xml", ListFile("big5", 0, ListLine("1", kBig5Name, "2330.TW")));
  EXPECT_EQ(Run({"convert", path, "--to", "utf-8", "-o", Path("b.xml")}), 0);
  EXPECT_EQ(Get("b.xml"), ListFile("utf-8", 0, ListLine("1", "許功蓋", "2330.TW")));
  EXPECT_EQ(Run({"convert", Path("b.xml"), "--to", "big5", "-o", "-"}), 0);
  EXPECT_EQ(streams.out, Get("a.xml"));
}

TEST_F(ListsConvert, WhatCannotBeCarriedOverIsNamedWithItsCodePoint) {
  const std::string path = Put("a.xml", ListFile("utf-8", 0, ListLine("1", "x电é", "2330.TW")));
  EXPECT_EQ(Run({"convert", path, "--to", "big5", "-o", Path("b.xml")}), 1);
  EXPECT_EQ(Get("b.xml"), ListFile("big5", 0, ListLine("1", "x??", "2330.TW")));
  EXPECT_NE(streams.err.find("\"x电é\" 1: big5 lacks 电 (U+7535) é (U+00E9)"), std::string::npos)
      << streams.err;
}

TEST_F(ListsConvert, StrictWritesNothingThen) {
  const std::string path = Put("a.xml", ListFile("utf-8", 0, ListLine("1", "电", "2330.TW")));
  EXPECT_EQ(Run({"convert", path, "--to", "big5", "--strict", "-o", Path("b.xml")}), 1);
  EXPECT_EQ(CountFiles(), 1u);
  EXPECT_EQ(Run({"convert", path, "--to", "gb2312", "--strict", "-o", Path("b.xml")}), 0);
  EXPECT_EQ(Get("b.xml"), ListFile("gb2312", 0, ListLine("1", "\xB5\xE7", "2330.TW")));
}

} // namespace
