#include "dialogs/resources/StringTable.h"

#include <gtest/gtest.h>

namespace {

TEST(StringTable, EveryEntryHasBothLanguages) {
  EXPECT_STREQ(tqSymbolString(48026, 1), "存檔失敗");
  EXPECT_STREQ(tqSymbolString(48026, 0), "存档失败");
}

TEST(StringTable, UnknownEntriesHaveNoText) {
  EXPECT_EQ(tqSymbolString(0, 1), nullptr);
  EXPECT_EQ(tqSymbolString(48103, 0), nullptr);
}

} // namespace
