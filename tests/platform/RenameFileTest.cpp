// Giving a file another name.
#include "platform/FileAccess.h"
#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

namespace {

using tqtest::TestDirectory;

bool Rename(const TestDirectory& directory, const char* from, const char* to) {
  return tq::Files().RenameFile(directory.File(from).c_str(), directory.File(to).c_str());
}

TEST(RenameFile, TheFileIsThereUnderItsNewNameAlone) {
  const TestDirectory directory("data");
  directory.Write("Old.xml", "bytes");
  EXPECT_TRUE(Rename(directory, "Old.xml", "Added.xml"));
  EXPECT_EQ(directory.List(), "Added.xml");
  EXPECT_EQ(directory.Read("Added.xml"), "bytes");
}

TEST(RenameFile, AFileOfThatNameIsReplaced) {
  const TestDirectory directory("data");
  directory.Write("Old.xml", "new");
  directory.Write("Added.xml", "older and longer");
  EXPECT_TRUE(Rename(directory, "Old.xml", "Added.xml"));
  EXPECT_EQ(directory.List(), "Added.xml");
  EXPECT_EQ(directory.Read("Added.xml"), "new");
}

TEST(RenameFile, AMissingFileFailsAndLeavesTheOther) {
  const TestDirectory directory("data");
  directory.Write("Added.xml", "x");
  EXPECT_FALSE(Rename(directory, "Old.xml", "Added.xml"));
  EXPECT_FALSE(tq::Files().RenameFile("", directory.File("Added.xml").c_str()));
  EXPECT_EQ(directory.Read("Added.xml"), "x");
}

TEST(RenameFile, ADirectoryInTheWayFailsAndLeavesBoth) {
  const TestDirectory directory("data");
  directory.Write("Old.xml", "x");
  EXPECT_FALSE(tq::Files().RenameFile(directory.File("Old.xml").c_str(), directory.Path().c_str()));
  EXPECT_EQ(directory.List(), "Old.xml");
  EXPECT_FALSE(tq::Files().RenameFile(directory.Path().c_str(), directory.File("Old.xml").c_str()));
  EXPECT_EQ(directory.Read("Old.xml"), "x");
}

TEST(RenameFile, ADirectoryThatEndsInABackslashByteIsLeftWhole) {
  const TestDirectory directory("\xB3\x5C");
  directory.Write("Old.xml", "x");
  EXPECT_TRUE(Rename(directory, "Old.xml", "Added.xml"));
  EXPECT_EQ(directory.List(), "Added.xml");
}

} // namespace
