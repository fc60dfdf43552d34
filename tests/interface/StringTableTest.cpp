// The string table for a terminal without resources.
#include "platform/interface/TQSymbolStrings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <string>

#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"

namespace {

constexpr unsigned kFirst = TQFirstString;
constexpr unsigned kLast = TQLastString;
// The library's own.
constexpr unsigned kFirstOwn = 48201;
constexpr unsigned kLastOwn = 48204;

// The numbers in between that have no entry.
bool IsGap(unsigned id) {
  return id == 48024 || id == 48040 || (id > 48050 && id < 48065) || (id > 48065 && id < 48100);
}

std::set<unsigned> Numbers() {
  std::set<unsigned> ids;
  for (unsigned id = kFirst; id <= kLast; ++id) {
    if (!IsGap(id))
      ids.insert(id);
  }
  for (unsigned id = kFirstOwn; id <= kLastOwn; ++id)
    ids.insert(id);
  return ids;
}

std::string Text(unsigned id, int traditional) {
  const char* text = tqSymbolString(id, traditional);
  return text == nullptr ? "" : text;
}

// The conversion specifiers of a format, in order: "%s%d".
std::string Directives(const std::string& text) {
  std::string directives;
  for (size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1))
    directives += text.substr(at, text.find_first_of("sd", at) - at + 1);
  return directives;
}

TEST(StringTable, EveryEntryHasBothLanguages) {
  for (const unsigned id : Numbers()) {
    EXPECT_NE(Text(id, 1), "") << id;
    EXPECT_NE(Text(id, 0), "") << id;
    EXPECT_EQ(Directives(Text(id, 1)), Directives(Text(id, 0))) << id;
  }
}

TEST(StringTable, EveryEntryIsInTheCodePageOfItsLanguage) {
  const int traditional = IsTraditionChinese();
  for (const unsigned id : Numbers()) {
    const std::string text = Text(id, traditional);
    EXPECT_EQ(standin::FromAnsi(standin::ToAnsi(text)), text) << id;
  }
}

TEST(StringTable, LanguagesAreNotMixedUp) {
  EXPECT_STREQ(tqSymbolString(48026, 1), "存檔失敗");
  EXPECT_STREQ(tqSymbolString(48026, 0), "存档失败");
  EXPECT_STREQ(tqSymbolString(48201, 1), "所有地區");
  EXPECT_STREQ(tqSymbolString(48201, 0), "所有地区");
}

TEST(StringTable, OtherNumbersHaveNoText) {
  const std::set<unsigned> ids = Numbers();
  for (unsigned id = kFirst - 100; id <= kLastOwn + 100; ++id) {
    if (!ids.contains(id)) {
      EXPECT_EQ(tqSymbolString(id, 1), nullptr) << id;
      EXPECT_EQ(tqSymbolString(id, 0), nullptr) << id;
    }
  }
  EXPECT_EQ(tqSymbolString(0, 1), nullptr);
}

// The rows of the page's table, without what each entry is for: the tests run at the tree's root.
std::map<unsigned, std::string> EntriesOfThePage() {
  std::map<unsigned, std::string> rows;
  std::ifstream page("docs/strings.md");
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("| 48"))
      rows[static_cast<unsigned>(std::stoul(line.substr(2)))] = line;
  }
  return rows;
}

std::string AsOnThePage(std::string text) {
  for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n'))
    text.replace(at, 1, "\\n");
  return text;
}

TEST(StringTable, ThePageHasEveryEntryThatTerminalsKnow) {
  std::map<unsigned, std::string> rows = EntriesOfThePage();
  EXPECT_EQ(rows.size(), 52u);
  for (unsigned id = kFirst; id <= kLast; ++id) {
    EXPECT_EQ(rows.contains(id), !IsGap(id)) << id;
    if (IsGap(id))
      continue;
    const std::string wanted = "| " + std::to_string(id) + " | " + AsOnThePage(Text(id, 1)) +
                               " | " + AsOnThePage(Text(id, 0)) + " | ";
    EXPECT_EQ(rows[id].substr(0, wanted.size()), wanted);
    EXPECT_GT(rows[id].size(), wanted.size() + 2) << "what it is for";
  }
}

} // namespace
