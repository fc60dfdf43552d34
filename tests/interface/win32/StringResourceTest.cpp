// The DLL's string resources, as the terminal's message box loads them.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "dialogs/resources/StringTable.h"

namespace {

// String resources come in blocks of 16, each string behind its length.
std::wstring ResourceText(HMODULE module, unsigned id, WORD language) {
  HRSRC found = FindResourceExW(module, reinterpret_cast<LPCWSTR>(RT_STRING),
                                MAKEINTRESOURCEW(id / 16 + 1), language);
  if (found == nullptr)
    return L"<no resource>";
  const auto* text = static_cast<const WCHAR*>(LockResource(LoadResource(module, found)));
  for (unsigned i = 0; i < id % 16; ++i)
    text += *text + 1;
  return std::wstring(text + 1, *text);
}

std::wstring Wide(const char* utf8) {
  wchar_t text[256] = {};
  MultiByteToWideChar(CP_UTF8, 0, utf8, -1, text, 256);
  return text;
}

TEST(StringResource, MessagesOfBothLanguagesAreTheTablesOwn) {
  HMODULE module = GetModuleHandleA("tqSymbol.dll");
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(ResourceText(module, 48026, 1028), Wide(tqSymbolString(48026, 1)));
  EXPECT_EQ(ResourceText(module, 48026, 2052), Wide(tqSymbolString(48026, 0)));
}

} // namespace
