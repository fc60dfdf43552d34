// The DLL's string resources, as the terminal's message box loads them.
#include <gtest/gtest.h>

#include "platform/interface/TQSymbolStrings.h"
#include "tests/interface/win32/Resource.h"

namespace {

constexpr unsigned kIds[] = {
#define TQ_STRING(id, traditional, simplified) id,
#include "platform/texts/Strings.inc"
#undef TQ_STRING
};

// String resources come in blocks of 16, each string behind its length.
std::wstring ResourceText(unsigned id, WORD language) {
  const Resource block = FindResourceOf(RT_STRING, static_cast<WORD>(id / 16 + 1), language);
  if (block.bytes == nullptr)
    return L"<no resource>";
  const auto* text = reinterpret_cast<const WCHAR*>(block.bytes);
  for (unsigned i = 0; i < id % 16; ++i)
    text += *text + 1;
  return std::wstring(text + 1, *text);
}

TEST(StringResource, EveryEntryIsTheTablesOwnInBothLanguages) {
  ASSERT_NE(Library(), nullptr);
  for (const unsigned id : kIds) {
    EXPECT_EQ(ResourceText(id, kTraditional), Wide(tqSymbolString(id, 1))) << id;
    EXPECT_EQ(ResourceText(id, kSimplified), Wide(tqSymbolString(id, 0))) << id;
  }
}

TEST(StringResource, LanguagesAreNotMixedUp) {
  EXPECT_EQ(ResourceText(48026, kTraditional), Wide("存檔失敗"));
  EXPECT_EQ(ResourceText(48026, kSimplified), Wide("存档失败"));
}

TEST(StringResource, UnknownEntriesAreEmpty) {
  EXPECT_EQ(ResourceText(48024, kTraditional), L"");
  EXPECT_EQ(ResourceText(48040, kSimplified), L"");
}

} // namespace
