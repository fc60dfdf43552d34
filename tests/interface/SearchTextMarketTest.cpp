// The search for one symbol: the market and group that the next search opens on, and those that the
// terminal gives and gets back.
#include "tests/interface/SearchText.h"

namespace {

class SearchMarketText : public SearchText {
protected:
  // Opens it on what is remembered, for a terminal that gives no market.
  void LookOnWhatIsRemembered(const Action& action) {
    lists = nullptr;
    Look(action);
    lists = &market;
  }
  std::string Given() const { return Utf8(market.ToString()); }
  static void ExpectBoxes(const User& user, const std::string& marketName,
                          const std::string& groupName) {
    EXPECT_EQ(user.Text(kMarket), marketName);
    EXPECT_EQ(user.Text(kGroup), groupName);
  }
  static std::string Chips() { return Text("半導體", "半导体"); }
};

// --- What is remembered --------------------------------------------------------------------------

TEST_F(SearchMarketText, TheNextSearchOpensOnTheMarketAndGroupOfTheLast) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 1));
  });
  LookOnWhatIsRemembered([](User& user) {
    ExpectBoxes(user, "上市", Chips());
    EXPECT_EQ(user.Rows(kGroup), (Lines{"全部商品", Chips(), "水泥"}));
  });
}

TEST_F(SearchMarketText, AChosenSymbolRemembersThemToo) {
  EXPECT_EQ(Run([](User& user) {
              ChooseMarket(user, kTse);
              EXPECT_TRUE(user.Select(kGroup, 2));
              EXPECT_TRUE(user.DoubleClick(kResults, 0));
            }),
            kChosen);
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, "上市", "水泥"); });
}

TEST_F(SearchMarketText, AMarketAloneIsRememberedWithAllOfItsGroups) {
  Look([](User& user) { ChooseMarket(user, kOtc); });
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, Text("上櫃", "上柜"), "全部商品"); });
}

TEST_F(SearchMarketText, AllMarketsAreRemembered) {
  GiveMarket("TSE,CHIP");
  Look([](User& user) { ChooseMarket(user, kAll); });
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

TEST_F(SearchMarketText, WhatTheTerminalGaveIsRememberedForASearchWithout) {
  GiveMarket("TSE,CEM");
  Look([](User&) {});
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, "上市", "水泥"); });
}

TEST_F(SearchMarketText, ASearchOfAnotherManagerOpensOnItToo) {
  Look([](User& user) { ChooseMarket(user, kOtc); });
  CTQSymbolListMgr another;
  ASSERT_EQ(another.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 0), 1);
  WhenDialogOpens([](User& user) {
    EXPECT_EQ(user.Text(kMarket), Text("上櫃", "上柜"));
    user.Press(WindowKey::Escape);
  });
  CTQSymbolListMgr::DoSearchUI(&another, another.GetSymbolTableMgr(), nullptr, "", nullptr, 0,
                               nullptr);
}

TEST_F(SearchMarketText, AMarketThatIsGoneIsAllMarkets) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 1));
  });
  manager.ClearGroupList();
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

TEST_F(SearchMarketText, AMarketOfAnEditionThatWasSwitchedOffIsAllMarkets) {
  manager.AddExtraTQInfo("OTV01");
  Look([](User& user) { EXPECT_TRUE(user.Select(kMarket, "海外")); });
  manager.RemoveExtraTQInfo("OTV01");
  LookOnWhatIsRemembered([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

TEST_F(SearchMarketText, ARememberedMarketHoldsTheBareCode) {
  Look([](User& user) { ChooseMarket(user, kTe); });
  lists = nullptr;
  EXPECT_EQ(Run(AwaitTheEnd, "7777"), kChosen);
  EXPECT_EQ(Chosen(), "7777.TE");
}

// --- What the terminal gives ---------------------------------------------------------------------

TEST_F(SearchMarketText, AGivenMarketAndGroupAreShown) {
  GiveMarket("TSE,CEM");
  Look([](User& user) { ExpectBoxes(user, "上市", "水泥"); });
}

TEST_F(SearchMarketText, AGivenMarketWithoutAGroupIsShown) {
  GiveMarket("OTC");
  Look([](User& user) { ExpectBoxes(user, Text("上櫃", "上柜"), "全部商品"); });
}

TEST_F(SearchMarketText, AGivenCloudMarketIsShown) {
  GiveMarket("VORNG01,VORNG0102");
  Look([](User& user) { ExpectBoxes(user, Text("雲自選", "云自选"), Text("雲端2", "云端2")); });
}

TEST_F(SearchMarketText, AGivenMarketGoesBeforeTheRememberedOne) {
  Look([](User& user) { ChooseMarket(user, kTse); });
  GiveMarket("ETF,");
  Look([](User& user) { ExpectBoxes(user, "基金", "全部商品"); });
}

TEST_F(SearchMarketText, AnEmptyGivenIdGoesBeforeTheRememberedMarket) {
  Look([](User& user) { ChooseMarket(user, kTse); });
  market = CListID();
  Look([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

TEST_F(SearchMarketText, AnUnknownGivenMarketIsAllMarkets) {
  GiveMarket("NOPE,CHIP");
  Look([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

TEST_F(SearchMarketText, AnUnknownGivenGroupIsAllOfTheMarket) {
  GiveMarket("TSE,WAFER");
  Look([](User& user) { ExpectBoxes(user, "上市", "全部商品"); });
}

TEST_F(SearchMarketText, AGivenMarketMayBeVeryLong) {
  GiveMarket(std::string(5000, 'M').c_str());
  Look([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
}

// --- What the terminal gets back -----------------------------------------------------------------

TEST_F(SearchMarketText, TheChosenMarketAndGroupAreGivenBack) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 1));
  });
  EXPECT_EQ(Given(), "2,TSE,CHIP");
  EXPECT_EQ(Utf8(market.GetGroupID()), "TSE");
  EXPECT_EQ(Utf8(market.GetSubGroupID()), "CHIP");
}

TEST_F(SearchMarketText, TheyAreGivenBackWithAChosenSymbolToo) {
  EXPECT_EQ(Run([](User& user) {
              ChooseMarket(user, kTe);
              Enter(user, "7777");
            }),
            kChosen);
  EXPECT_EQ(Given(), "2,TE,");
}

TEST_F(SearchMarketText, AMarketWithAllOfItsGroupsIsGivenBack) {
  Look([](User& user) { ChooseMarket(user, kTse); });
  EXPECT_EQ(Given(), "2,TSE,");
}

TEST_F(SearchMarketText, AllMarketsAreGivenBackAsTwoEmptyCodes) {
  Look([](User&) {});
  EXPECT_EQ(Given(), "2,,");
}

TEST_F(SearchMarketText, AnUnknownMarketIsGivenBackAsAllMarkets) {
  GiveMarket("NOPE,CHIP");
  Look([](User&) {});
  EXPECT_EQ(Given(), "2,,");
}

TEST_F(SearchMarketText, WhatWasGivenComesBackWhenNothingIsChosen) {
  GiveMarket("TSE,CEM");
  Look([](User&) {});
  EXPECT_EQ(Given(), "2,TSE,CEM");
}

TEST_F(SearchMarketText, WithoutAGivenIdTheSearchChoosesAllTheSame) {
  lists = nullptr;
  EXPECT_EQ(Run([](User& user) { Enter(user, "2330"); }), kChosen);
  EXPECT_EQ(Chosen(), "2330.TW");
}

// --- Of every type -------------------------------------------------------------------------------

class SearchMarketOfType : public SearchMarketText, public testing::WithParamInterface<int> {};

TEST_P(SearchMarketOfType, TheGroupAndSubGroupOfTheIdAreShown) {
  market.SetData(static_cast<ListIDType>(GetParam()), "TSE,CEM", 0);
  Look([](User& user) { ExpectBoxes(user, "上市", "水泥"); });
}

TEST_P(SearchMarketOfType, AGroupComesBack) {
  market.SetData(static_cast<ListIDType>(GetParam()), "TSE,CEM", 0);
  Look([](User&) {});
  EXPECT_EQ(market.GetType(), ListIDGroup);
  EXPECT_EQ(Utf8(market.GetID()), "TSE,CEM");
}

TEST_P(SearchMarketOfType, AnIdThatIsNoGroupsShowsAllMarkets) {
  market.SetData(static_cast<ListIDType>(GetParam()), "A", 0);
  Look([](User& user) { ExpectBoxes(user, "所有商品", "全部商品"); });
  EXPECT_EQ(Given(), "2,,");
}

INSTANTIATE_TEST_SUITE_P(Types, SearchMarketOfType, testing::Range(0, 9));

} // namespace
