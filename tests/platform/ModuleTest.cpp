#include "platform/Module.h"

#include "platform/Encoding.h"
#include "platform/FileAccess.h"

#include <gtest/gtest.h>

namespace {

TEST(Module, TheModuleIsAFileInItsDirectory) {
  const std::string path = tq::OwnModulePath();
  const std::string directory = tq::OwnModuleDirectory();
  EXPECT_TRUE(tq::Files().FileExists(path.c_str())) << path;
  EXPECT_TRUE(tq::Files().DirectoryExists(directory.c_str())) << directory;
  ASSERT_LT(directory.size() + 1, path.size());
  EXPECT_EQ(directory, path.substr(0, directory.size()));
  EXPECT_EQ(std::string::npos, path.find_first_of("/\\", directory.size() + 1));
  EXPECT_NE(nullptr, tq::OwnModule());
}

TEST(Module, ADirectoryEndsBeforeTheLastSeparator) {
  EXPECT_EQ("/a/b", tq::DirectoryOf("/a/b/c.so"));
  EXPECT_EQ("", tq::DirectoryOf("/c.so"));
  EXPECT_EQ("", tq::DirectoryOf("c.so"));
  EXPECT_EQ("", tq::DirectoryOf(""));
}

// A file name may hold double-byte characters whose trail byte is a backslash.
TEST(Module, ATrailByteIsNoSeparator) {
  const std::string name =
      tq::AnsiCodePage() == tq::kCodePageBig5 ? "\xB3\x5C\xA5\x5C" : "\x81\x5C\x97\x5C";
  EXPECT_EQ("/a", tq::DirectoryOf("/a/" + name));
  EXPECT_EQ("/" + name, tq::DirectoryOf("/" + name + "/" + name + "x"));
}

// Symptom: on POSIX a long path could end in the first half of a character.
TEST(Module, ALongPathIsCutAtAWholeCharacter) {
  const std::string fits(tq::kModulePathLimit, 'a');
  EXPECT_EQ(fits, tq::CutModulePath(fits));
  EXPECT_EQ(fits, tq::CutModulePath(fits + "b"));
  const std::string shorter(tq::kModulePathLimit - 1, 'a');
  EXPECT_EQ(shorter, tq::CutModulePath(shorter + "\xB3\x5C"));
}

} // namespace
