// What the two boxes of a symbol search offer.
#include "dialogs/search/MarketChoice.h"

#include "platform/FieldText.h"
#include "platform/LibraryString.h"
#include "tests/interface/EditTest.h"
#include "tests/support/GroupMarket.h"

namespace {

class MarketChoiceTest : public EditTest {
protected:
  MarketChoiceTest() { Serve(GroupMarket()); }
  void Serve(const standin::Market& market) {
    standin::SetMarket(market);
    StartWith({"A/one/2330.TW"});
  }
  static std::vector<std::string> Names(const std::vector<CString>& names) {
    std::vector<std::string> texts;
    for (const CString& name : names)
      texts.push_back(standin::FromAnsi(name.GetString()));
    return texts;
  }
  static std::string Word(const char* traditional, const char* simplified) {
    return IsTraditionChinese() != 0 ? traditional : simplified;
  }
  static std::string Ids(const tq::SymbolRows& rows) {
    std::string ids;
    for (const SymbolInfo& symbol : rows.All())
      ids += (ids.empty() ? "" : " ") + std::string(symbol.id);
    return ids;
  }
  using Texts = std::vector<std::string>;
};

TEST_F(MarketChoiceTest, MarketsAreTheGroupsOfType1AndTheCloudGroupsBehindAll) {
  EXPECT_EQ(Names(tq::MarketChoice(manager).MarketNames()),
            (Texts{"所有商品", "上市", Word("上櫃", "上柜"), "基金", Word("雲自選", "云自选"),
                   Word("推薦", "推荐")}));
}

TEST_F(MarketChoiceTest, GroupsOfType101AreForEditionsThatHaveThem) {
  standin::Market market = GroupMarket();
  market.groups.push_back({101, "", "ED", "特別", "特别", {"2317.TW"}});
  Serve(market);
  EXPECT_EQ(tq::MarketChoice(manager).MarketNames().size(), 6u);
  manager.AddExtraTQInfo("x;OTV01;y");
  const Texts names = Names(tq::MarketChoice(manager).MarketNames());
  ASSERT_EQ(names.size(), 7u);
  EXPECT_EQ(names[4], Word("特別", "特别")); // in front of the cloud groups
}

TEST_F(MarketChoiceTest, AMarketOffersItsGroupsBehindAll) {
  const tq::MarketChoice markets(manager);
  EXPECT_EQ(Names(markets.GroupNames(1)), (Texts{"全部商品", Word("半導體", "半导体"), "水泥"}));
  EXPECT_EQ(Names(markets.GroupNames(3)), Texts{"全部商品"});
}

TEST_F(MarketChoiceTest, AllMarketsAndMarketsThatAreNotThereOfferAllAlone) {
  const tq::MarketChoice markets(manager);
  for (const int market : {0, -1, 7, 1000})
    EXPECT_EQ(Names(markets.GroupNames(market)), Texts{"全部商品"}) << market;
}

TEST_F(MarketChoiceTest, MarketsAndGroupsAreFoundByTheirIds) {
  const tq::MarketChoice markets(manager);
  for (int market = 1; market < 6; ++market) {
    EXPECT_EQ(markets.FindMarket(markets.MarketId(market)), market);
    const int groups = static_cast<int>(markets.GroupNames(market).size());
    for (int group = 1; group < groups; ++group)
      EXPECT_EQ(markets.FindGroup(market, markets.GroupId(market, group)), group);
  }
  EXPECT_NE(markets.GroupId(1, 1), markets.GroupId(1, 2));
}

TEST_F(MarketChoiceTest, AllHasNoIdAndWhatIsNotThereMeansAll) {
  const tq::MarketChoice markets(manager);
  for (const int none : {0, -1, 100}) {
    EXPECT_STREQ(markets.MarketId(none), "") << none;
    EXPECT_STREQ(markets.GroupId(1, none), "") << none;
    EXPECT_STREQ(markets.GroupId(none, 1), "") << none;
  }
  for (const char* const none : {"", "nowhere"}) {
    EXPECT_EQ(markets.FindMarket(none), 0) << none;
    EXPECT_EQ(markets.FindGroup(1, none), 0) << none;
  }
}

TEST_F(MarketChoiceTest, AllOfAMarketAreTheMembersOfItsGroupsEachOnce) {
  standin::Market market = GroupMarket();
  market.groups[2].members = {"1101.TW", "2454.TW"};
  Serve(market);
  EXPECT_EQ(Ids(tq::MarketChoice(manager).Symbols(1, 0)), "2330.TW 2454.TW 1101.TW");
}

TEST_F(MarketChoiceTest, AGroupHasItsMembers) {
  const tq::MarketChoice markets(manager);
  EXPECT_EQ(Ids(markets.Symbols(1, 2)), "1101.TW");
  EXPECT_EQ(Ids(markets.Symbols(2, 1)), "6488.TE 5483.TE");
}

TEST_F(MarketChoiceTest, AMarketWithoutGroupsHasItsOwnMembers) {
  EXPECT_EQ(Ids(tq::MarketChoice(manager).Symbols(3, 0)), "0050.TW");
}

TEST_F(MarketChoiceTest, WhatIsNotThereHasNoSymbols) {
  const tq::MarketChoice markets(manager);
  for (const auto& [market, group] : {std::pair{-1, 0}, {6, 0}, {1, 3}, {1, -1}, {3, 1}})
    EXPECT_EQ(markets.Symbols(market, group).Count(), 0) << market << " " << group;
}

TEST_F(MarketChoiceTest, AllMarketsAreTheManagersBufferAndNoCopyOfIt) {
  int count = 0;
  const auto buffer = manager.ShareAllSymbolInfos(&count);
  ASSERT_NE(buffer, nullptr);
  const tq::SymbolRows rows = tq::MarketChoice(manager).Symbols(0, 0);
  EXPECT_EQ(rows.Count(), count);
  EXPECT_EQ(&rows.At(0), buffer.get());
}

TEST_F(MarketChoiceTest, ABufferThatIsMissingIsBuilt) {
  CTQSymbolListMgr other;
  standin::FailAlways("VLGetSymbolInfos2");
  other.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0);
  ASSERT_EQ(other.CheckAllSymbolByExch(), 1);
  standin::FailCall("VLGetSymbolInfos2", 0);
  EXPECT_EQ(tq::MarketChoice(other).Symbols(0, 0).Count(),
            static_cast<int>(GroupMarket().instruments.size()));
}

TEST_F(MarketChoiceTest, WhatIsShownStaysWhenTheTerminalReadsAllSymbolsAnew) {
  const tq::SymbolRows rows = tq::MarketChoice(manager).Symbols(0, 0);
  const std::string before = Ids(rows);
  standin::Market market = GroupMarket();
  market.instruments.resize(3);
  standin::SetMarket(market);
  manager.SortAllSymbolByExch();
  int count = 0;
  const auto buffer = manager.ShareAllSymbolInfos(&count);
  EXPECT_EQ(count, 3);
  EXPECT_NE(buffer.get(), &rows.At(0));
  EXPECT_EQ(Ids(rows), before);
}

TEST_F(MarketChoiceTest, AServiceThatFailsGivesNoSymbols) {
  standin::FailAlways("VLGetGroupSymbol");
  const tq::MarketChoice markets(manager);
  EXPECT_EQ(markets.Symbols(1, 1).Count(), 0);
  EXPECT_EQ(markets.Symbols(1, 0).Count(), 0);
  EXPECT_EQ(markets.Symbols(3, 0).Count(), 0);
}

TEST_F(MarketChoiceTest, TheTerminalMayRemoveTheGroupsWhileMembersAreRead) {
  const tq::MarketChoice markets(manager);
  standin::OnCall("VLGetGroupSymbol", [this] { manager.RemoveGroupList(1); });
  EXPECT_EQ(markets.Symbols(3, 0).Count(), 0);
  standin::OnCall("VLGetGroupSymbol", nullptr);
  EXPECT_EQ(markets.Symbols(1, 0).Count(), 0);
}

TEST_F(MarketChoiceTest, TheTerminalMayClearTheGroupsWhileAMarketIsRead) {
  const tq::MarketChoice markets(manager);
  standin::OnCall("VLGetGroupSymbol", [this] { manager.ClearGroupList(); });
  EXPECT_EQ(markets.Symbols(1, 0).Count(), 0);
}

TEST_F(MarketChoiceTest, AManagerWithoutGroupsOffersAllAlone) {
  manager.ClearGroupList();
  EXPECT_EQ(Names(tq::MarketChoice(manager).MarketNames()), Texts{"所有商品"});
}

} // namespace
