// Listing and removing the library's files of a directory.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/FileAccess.h"
#include "tests/support/TempDir.h"

namespace {

using FoundNames = std::vector<std::string>;

FoundNames Listed(const std::string& directory, const char* prefix) {
  FoundNames names = {"left over"};
  EXPECT_TRUE(tq::SystemFiles().ListFiles(directory.c_str(), prefix, names));
  std::sort(names.begin(), names.end());
  return names;
}

TEST(DirectoryFiles, AreThoseWithThePrefix) {
  // The directory's name has a trail byte that equals the separator.
  const TempDir directory("許功");
  EXPECT_EQ(Listed(directory.Path(), ""), FoundNames{});
  for (const char* name : {"SymbolList_1.xml", "SymbolList_2.xml", "SymbolList.xml", "Other"})
    directory.Write(name, "x");
  directory.MakeDirectory("SymbolList_3.xml");
  EXPECT_EQ(Listed(directory.Path(), "SymbolList_"),
            (FoundNames{"SymbolList_1.xml", "SymbolList_2.xml"}));
  EXPECT_EQ(Listed(directory.Path(), "symbollist"), FoundNames{});
  EXPECT_EQ(Listed(directory.Path(), "").size(), 4u);
}

TEST(DirectoryFiles, OfAMissingDirectoryAreNone) {
  const TempDir directory;
  FoundNames names = {"left over"};
  EXPECT_FALSE(tq::SystemFiles().ListFiles(directory.Joined("gone").c_str(), "", names));
  EXPECT_EQ(names, FoundNames{});
}

TEST(DirectoryFiles, AreListedOnlyByPlainNames) {
  EXPECT_TRUE(tq::IsListedName("SymbolList_1.xml", "SymbolList_"));
  EXPECT_FALSE(tq::IsListedName("SymbolList_\xB3\x5C.xml", "SymbolList_"));
  EXPECT_FALSE(tq::IsListedName("SymbolList", "SymbolList_"));
}

TEST(DirectoryFiles, AreRemovedAndNothingElseIs) {
  const TempDir directory;
  directory.Write("a", "x");
  directory.MakeDirectory("b");
  tq::FileAccess& files = tq::SystemFiles();
  EXPECT_TRUE(files.RemoveFile(directory.Joined("a").c_str()));
  EXPECT_FALSE(files.RemoveFile(directory.Joined("a").c_str()));
  EXPECT_FALSE(files.RemoveFile(directory.Joined("b").c_str()));
  EXPECT_EQ(directory.Names(), FoundNames{"b"});
}

} // namespace
