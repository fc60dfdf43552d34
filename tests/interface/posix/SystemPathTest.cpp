// Paths of the library as this system's functions open them.
#include "platform/interface/TQSymbolText.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemPath, TheLibrarysOwnSeparatorBecomesASlash) {
  EXPECT_STREQ(TQSystemPath("/home/u\\SymbolList_Backup.xml"), "/home/u/SymbolList_Backup.xml");
  // One of a directory's name, be it the second byte of a character, stays.
  EXPECT_STREQ(TQSystemPath("/a\\b\\SymbolList.xml"), "/a\\b/SymbolList.xml");
  EXPECT_STREQ(TQSystemPath("/\xB3\\\\SymbolList.xml"), "/\xB3\\/SymbolList.xml");
}

TEST(SystemPath, OtherTextsStay) {
  for (const char* path : {"", "/home/u", "/home/u/a.xml", "/a\\b/c.xml", "/\xB3\\", "/a\\\xE9"})
    EXPECT_STREQ(TQSystemPath(path), path);
  EXPECT_TRUE(TQSystemPath(nullptr).IsEmpty());
}

} // namespace
