// In services that keep their promises the checker finds nothing.
#include <fstream>
#include <iterator>

#include "tests/conformance/Checked.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TradingMarket.h"

namespace {

class CleanTest : public StandInTest {};

standin::Market SampleMarket() {
  standin::Market market;
  std::string error;
  EXPECT_TRUE(standin::LoadMarket("data/market", market, error)) << error;
  return market;
}

TEST_F(CleanTest, NothingIsFoundInTheSmallMarket) {
  const Checked checked;
  EXPECT_EQ(checked.Text(), "");
}

TEST_F(CleanTest, NothingIsFoundInTheSampleMarket) {
  standin::SetMarket(SampleMarket());
  const Checked checked;
  EXPECT_EQ(checked.Text(), "");
}

TEST_F(CleanTest, NothingIsFoundInASample) {
  standin::SetMarket(SampleMarket());
  const Checked checked(true);
  EXPECT_EQ(checked.Text(), "");
}

TEST_F(CleanTest, MessageBoxesAreShownOnlyWhenAskedFor) {
  const Checked silent;
  EXPECT_TRUE(standin::Messages().empty());
  standin::AnswerMessagesInTurn({1, 6});
  const Checked spoken(true, true);
  EXPECT_EQ(standin::Messages().size(), 2u);
  EXPECT_EQ(spoken.Text(), "");
}

// Comment marks and line breaks apart, as the sentence may be broken anywhere.
std::string WordsOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string words;
  for (std::string word; stream >> word;)
    if (word != "//")
      words += (words.empty() ? "" : " ") + word;
  return words;
}

TEST(RuleTest, EachIsASentenceOfItsHeader) {
  for (const conformance::RuleText& rule : conformance::RuleTexts()) {
    const std::string words = WordsOf(std::string("platform/services/") + rule.header);
    EXPECT_NE(words.find(rule.sentence), std::string::npos) << rule.id << ": " << rule.sentence;
  }
}

TEST(RuleTest, EachHasAnIdOfItsOwn) {
  std::set<std::string> ids;
  for (const conformance::RuleText& rule : conformance::RuleTexts())
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
}

} // namespace
