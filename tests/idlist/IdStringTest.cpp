#include "idlist/IdString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Row {
  const char* ids;
  std::vector<std::string> tokens;
  int headings;
  bool plain;
  const char* lookup;
};

const Row kRows[] = {
    {"", {}, 0, true, ""},
    {",", {}, 0, false, ""},
    {",,,", {}, 0, false, ""},
    {"2330.TW", {"2330.TW"}, 0, true, "2330.TW"},
    {"A,B", {"A", "B"}, 0, true, "A,B"},
    {"A,B,", {"A", "B"}, 0, false, "A,B"},
    {",A", {"A"}, 0, false, "A"},
    {"A,,B", {"A", "B"}, 0, false, "A,B"},
    {"Chips:,A", {"Chips:", "A"}, 1, false, "A"},
    {"A,x:y,B", {"A", "x:y", "B"}, 1, false, "A,B"},
    {"only:", {"only:"}, 1, false, ""},
    {":", {":"}, 0, true, ":"},
    {":,Head:,A", {":", "Head:", "A"}, 1, false, ":,A"},
    {":A,B", {":A", "B"}, 0, true, ":A,B"},
    {"::", {"::"}, 1, false, ""},
    {" A , B ", {"A", "B"}, 0, false, "A,B"},
    {"A, B", {"A", "B"}, 0, false, "A,B"},
    {"A,B ", {"A", "B"}, 0, false, "A,B"},
    {" , \t\r\n,A", {"A"}, 0, false, "A"},
    {"  ", {}, 0, false, ""},
    {" two words: ,a", {" two words: ", "A"}, 1, false, "a"},
    {"2330.tw,PFDa.NYSE", {"2330.TW", "PFDA.NYSE"}, 0, true, "2330.tw,PFDa.NYSE"},
    {"\xB3\x5C:,\xA5\x5C", {"\xB3\x5C:", "\xA5\x5C"}, 1, false, "\xA5\x5C"},
    {"\xA4,B", {"\xA4", "B"}, 0, true, "\xA4,B"},
};

TEST(IdString, SplitsAtEveryCommaAndCountsHeadings) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.ids);
    CStringArray tokens;
    tokens.Add("left over");
    const tq::SplitIds split = tq::SplitIdString(row.ids, tokens);
    ASSERT_EQ(tokens.GetSize(), static_cast<int>(row.tokens.size()));
    for (size_t i = 0; i < row.tokens.size(); ++i)
      EXPECT_STREQ(tokens[static_cast<int>(i)], row.tokens[i].c_str());
    EXPECT_EQ(split.headings, row.headings);
    EXPECT_EQ(split.plain, row.plain);
    EXPECT_STREQ(tq::LookupString(row.ids), row.lookup);
  }
}

TEST(IdString, PlainSaysThatTheStringIsItsOwnLookupString) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.ids);
    CStringArray tokens;
    if (tq::SplitIdString(row.ids, tokens).plain) {
      EXPECT_STREQ(tq::LookupString(row.ids), row.ids);
    }
  }
}

TEST(IdString, NormalisedIdsHaveNoBlanksAroundAndUpperCaseLetters) {
  const struct {
    const char* id;
    const char* normal;
  } rows[] = {
      {"2330.TW", "2330.TW"},
      {" 2330.tw ", "2330.TW"},
      {"txo21000l6.tf", "TXO21000L6.TF"},
      {"", ""},
      {"   ", ""},
      {"\xA8\x61", "\xA8\x61"},
  };
  for (const auto& row : rows) {
    CString id = row.id;
    tq::NormaliseId(id);
    EXPECT_STREQ(id, row.normal);
  }
}

} // namespace
