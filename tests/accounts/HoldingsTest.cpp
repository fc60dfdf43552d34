// Holdings as the proxy hands them out, and put together.
#include "accounts/Holdings.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/CraftedTexts.h"

namespace {

std::string Merge(std::initializer_list<const char*> accounts) {
  tq::MergedHoldings merged;
  for (const char* holdings : accounts)
    merged.Add(holdings);
  return merged.Text().GetString();
}

TEST(Holdings, TidyTextComesBackAsItIs) {
  EXPECT_STREQ(tq::TidyHoldings("2330.TW,2317.TW"), "2330.TW,2317.TW");
}

TEST(Holdings, BlanksAndEmptyPiecesAreLeftOut) {
  const struct {
    const char* given;
    const char* tidy;
  } cases[] = {
      {nullptr, ""},
      {"", ""},
      {",", ""},
      {" , \t,\r\n", ""},
      {" 2330.TW", "2330.TW"},
      {"2330.TW,", "2330.TW"},
      {",2330.TW", "2330.TW"},
      {"2330.TW,,2317.TW", "2330.TW,2317.TW"},
      {" 2330.TW , 2317.TW\r\n", "2330.TW,2317.TW"},
      {"A B, C", "A B,C"}, // a blank inside is the id's own
  };
  for (const auto& c : cases)
    EXPECT_STREQ(tq::TidyHoldings(c.given), c.tidy) << (c.given == nullptr ? "null" : c.given);
}

TEST(Holdings, RepetitionsAndLetterCaseStay) {
  EXPECT_STREQ(tq::TidyHoldings("aapl.NASD,2330.TW,aapl.NASD"), "aapl.NASD,2330.TW,aapl.NASD");
}

TEST(Holdings, AByteThatIsNoBlankStays) {
  EXPECT_STREQ(tq::TidyHoldings("\xA1\x40,\xB3\x5C"), "\xA1\x40,\xB3\x5C");
}

TEST(Holdings, NothingMergesToNothing) {
  EXPECT_EQ(Merge({}), "");
  EXPECT_EQ(Merge({"", ""}), "");
}

TEST(Holdings, MergingKeepsTheFirstPosition) {
  EXPECT_EQ(Merge({"2330,2317", "2454,2317,1101", "2330"}), "2330,2317,2454,1101");
}

TEST(Holdings, MergingOneAccountDropsItsRepetitions) {
  EXPECT_EQ(Merge({"2330,2317,2330,2330"}), "2330,2317");
}

TEST(Holdings, MergingComparesBytes) {
  EXPECT_EQ(Merge({"aapl", "AAPL", "AAP", "aapl"}), "aapl,AAPL,AAP");
}

TEST(Holdings, OneIdBeingTheStartOfAnotherIsAnother) {
  EXPECT_EQ(Merge({"23301", "2330", "330", "2330"}), "23301,2330,330");
}

TEST(Holdings, ManyIdsKeepTheirOrderWhileTheSetGrows) {
  std::string all;
  std::string again;
  for (int i = 0; i < 20'000; ++i) {
    all += (i > 0 ? "," : "") + std::to_string(i * 7) + ".TW";
    again += (i > 0 ? "," : "") + std::to_string((19'999 - i) * 7) + ".TW";
  }
  EXPECT_EQ(Merge({all.c_str(), again.c_str()}), all);
}

TEST(Holdings, AnEmptyAccountBetweenChangesNothing) {
  EXPECT_EQ(Merge({"2330", "", "2317"}), "2330,2317");
}

// Ids crafted to collide, so that each one is compared with all before it.
TEST(Holdings, NobodyCanChooseIdsThatAreSlowToMerge) {
  constexpr std::size_t kIds = 80'000;
  const auto ids = CraftedTexts(
      kIds, [](const std::string& text) { return text.find(',') == std::string::npos; });
  std::string crafted;
  std::string plain;
  for (std::size_t i = 0; i < kIds; ++i) {
    ASSERT_EQ(std::hash<std::string>()(ids[i]), std::hash<std::string>()(ids[0]));
    crafted += (i > 0 ? "," : "") + ids[i];
    plain += (i > 0 ? "," : "") + std::to_string(i) + ".TW";
  }
  tq::MergedHoldings merged;
  merged.Add(crafted.c_str());
  tq::MergedHoldings usual;
  usual.Add(plain.c_str());
  EXPECT_STREQ(merged.Text(), crafted.c_str());
  EXPECT_LT(merged.Steps(), 2 * usual.Steps());
  EXPECT_LT(usual.Steps(), 10 * kIds);
}

} // namespace
