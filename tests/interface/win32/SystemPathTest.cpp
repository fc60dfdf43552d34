// Paths of the library as this system's functions open them.
#include "platform/interface/TQSymbolText.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemPath, IsThePathItself) {
  for (const char* path : {"", "C:\\u\\SymbolList_Backup.xml", "C:\\u", "a/b\\c.xml", "\xB3\\"})
    EXPECT_STREQ(TQSystemPath(path), path);
  EXPECT_TRUE(TQSystemPath(nullptr).IsEmpty());
}

} // namespace
