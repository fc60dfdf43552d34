// The checker names each fault that is planted in the services, and nothing else.
#include "tests/conformance/Breach.h"

#include "tests/conformance/Checked.h"
#include "tests/conformance/Faults.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TradingMarket.h"

using conformance::Rule;

standin::Market FaultMarket() {
  standin::Market market = TradingMarket();
  market.exchanges.push_back({20, "EMPT", "空", "空"});
  for (standin::Instrument& instrument : market.instruments)
    if (instrument.code == "TXFL6")
      instrument.extended = {{2, "V4=W;V5=2"}, {3, "V5=TX;V6=W2"}};
  market.groups = {{7, "", "G1", "一", "一", {"2330.TW", "2317.TW", "2454.TW"}},
                   {7, "G1", "G2", "二", "二", {"1101.TW"}}};
  market.indicators = {{8, "台", "台", "", "", "GDP", "生產", "生产", ""}};
  market.fullMenuKey = "yes";
  return market;
}

void ChangeMarket(const std::function<void(standin::Market& market)>& change) {
  standin::Market market = FaultMarket();
  change(market);
  standin::SetMarket(market);
}

namespace {

std::vector<Breach> AllBreaches() {
  std::vector<Breach> all;
  for (const auto& some : {ArrayBreaches(), SymbolBreaches(), SearchBreaches(), GroupBreaches(),
                           TradingBreaches(), AttributeBreaches(), CommonBreaches()})
    all.insert(all.end(), some.begin(), some.end());
  return all;
}

class BreachTest : public StandInTest, public testing::WithParamInterface<Breach> {
protected:
  BreachTest() {
    TheFaults() = {};
    standin::SetMarket(FaultMarket());
  }
  ~BreachTest() override { TheFaults() = {}; }
};

TEST_P(BreachTest, IsFoundAndNothingElse) {
  const Breach& breach = GetParam();
  breach.plant();
  const Checked checked;
  bool found = false;
  for (const conformance::Finding& each : checked.findings) {
    found = found || each.rule == breach.rule;
    EXPECT_TRUE(each.rule == breach.rule || breach.following.count(each.rule) != 0)
        << each.call << ": " << conformance::TextOf(each.rule).id << ": " << each.seen;
  }
  EXPECT_TRUE(found) << conformance::TextOf(breach.rule).id << "\n" << checked.Text();
}

INSTANTIATE_TEST_SUITE_P(All, BreachTest, testing::ValuesIn(AllBreaches()),
                         [](const auto& about) { return std::string(about.param.name); });

TEST(BreachesTest, TheMarketHasNone) {
  standin::Reset();
  standin::SetMarket(FaultMarket());
  EXPECT_EQ(Checked().Text(), "");
}

TEST(BreachesTest, EveryRuleIsBrokenByOne) {
  std::set<Rule> broken = {Rule::BoxResult}; // BoxTest
#if !defined(_WIN32)
  broken.insert(Rule::LanguageCodePage); // which follows the answer there
#endif
  for (const Breach& breach : AllBreaches())
    broken.insert(breach.rule);
  for (std::size_t i = 0; i < conformance::RuleTexts().size(); ++i)
    EXPECT_EQ(broken.count(static_cast<Rule>(i)), 1u) << conformance::RuleTexts()[i].id;
}

class BoxTest : public StandInTest {};

TEST_F(BoxTest, AButtonThatTheBoxDoesNotHaveIsFound) {
  standin::AnswerMessagesInTurn({1, 1});
  const Checked checked(true, true);
  ASSERT_EQ(checked.findings.size(), 1u) << checked.Text();
  EXPECT_EQ(checked.findings[0].rule, Rule::BoxResult);
}

} // namespace
