// The search for one symbol: the symbols of a market or group, and the choice of a result.
#include <algorithm>

#include "tests/interface/SearchText.h"

namespace {

class SearchChoiceText : public SearchText {
protected:
  // Opens it on two results and does this.
  int OnTwins(const Action& action) {
    return Run([&action](User& user) {
      Enter(user, "7777");
      ASSERT_EQ(Names(user), Twins());
      action(user);
      if (user.IsUp())
        user.Press(WindowKey::Escape);
    });
  }
  static bool Holds(const Lines& names, const std::string& id) {
    return std::find(names.begin(), names.end(), SymbolName(id)) != names.end();
  }
};

// --- The choice ----------------------------------------------------------------------------------

TEST_F(SearchChoiceText, ADoubleClickChoosesTheRow) {
  EXPECT_EQ(OnTwins([](User& user) {
              EXPECT_TRUE(user.DoubleClick(kResults, 0));
              EXPECT_FALSE(user.IsUp());
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("7777.TW"));
}

TEST_F(SearchChoiceText, ADoubleClickChoosesTheRowThatIsClickedAndNotTheFirst) {
  EXPECT_EQ(OnTwins([](User& user) { user.DoubleClick(kResults, 1); }), kChosen);
  EXPECT_TRUE(HasRecordOf("7777.TE"));
}

TEST_F(SearchChoiceText, ADoubleClickNeedsNoRecordOfTheTerminals) {
  WhenDialogOpens([](User& user) {
    Enter(user, "7777");
    user.DoubleClick(kResults, 1);
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "",
                                         nullptr, 0, nullptr),
            kChosen);
}

TEST_F(SearchChoiceText, AClickChoosesNothing) {
  EXPECT_EQ(OnTwins([](User& user) {
              EXPECT_TRUE(user.ClickRow(kResults, 1));
              EXPECT_TRUE(user.IsUp());
            }),
            kCancelled);
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchChoiceText, ADoubleClickWithSeveralRowsSelectedChoosesNothing) {
  EXPECT_EQ(OnTwins([](User& user) {
              EXPECT_TRUE(user.ClickRow(kResults, 0));
              EXPECT_TRUE(user.DoubleClick(kResults, 1, Modifier::Shift));
              EXPECT_EQ(user.SelectedRows(kResults), (std::vector<int>{0, 1}));
              EXPECT_TRUE(user.IsUp());
            }),
            kCancelled);
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchChoiceText, ADoubleClickBesideTheRowsChoosesNothing) {
  EXPECT_EQ(OnTwins([](User& user) {
              EXPECT_TRUE(user.DoubleClick(kResults, -1));
              EXPECT_TRUE(user.IsUp());
            }),
            kCancelled);
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchChoiceText, ADoubleClickInAnEmptyListChoosesNothing) {
  Look([](User& user) {
    EXPECT_TRUE(user.DoubleClick(kResults, -1));
    EXPECT_TRUE(user.IsUp());
  });
}

TEST_F(SearchChoiceText, AResultOfTheFirstSearchIsChosen) {
  EXPECT_EQ(Run(
                [](User& user) {
                  EXPECT_TRUE(AwaitFirstSearch(user));
                  EXPECT_TRUE(user.DoubleClick(kResults, 1));
                },
                "7777"),
            kChosen);
  EXPECT_TRUE(HasRecordOf("7777.TE"));
}

TEST_F(SearchChoiceText, ASingleResultOfAForcedListIsChosen) {
  EXPECT_EQ(Run(
                [](User& user) {
                  EXPECT_TRUE(AwaitFirstSearch(user));
                  EXPECT_TRUE(user.DoubleClick(kResults, 0));
                },
                "2330", kForced),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2330.TW"));
}

TEST_F(SearchChoiceText, ASymbolOfAGroupIsChosen) {
  EXPECT_EQ(Run([](User& user) {
              ChooseMarket(user, kTse);
              EXPECT_TRUE(user.Select(kGroup, 1));
              EXPECT_TRUE(user.DoubleClick(kResults, 1));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2454.TW"));
}

TEST_F(SearchChoiceText, ARowOfALaterSearchIsChosenAndNotOneOfTheFormer) {
  EXPECT_EQ(OnTwins([](User& user) {
              Enter(user, "TXF");
              EXPECT_TRUE(user.DoubleClick(kResults, 1));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("TXFA7.TF"));
}

// --- The symbols of a market or group ------------------------------------------------------------

TEST_F(SearchChoiceText, AMarketShowsTheSymbolsOfItsGroups) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_EQ(Names(user), ChipsAndCement());
  });
}

TEST_F(SearchChoiceText, AGroupShowsItsSymbols) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 2));
    EXPECT_EQ(Names(user), NamesOf({"1101.TW"}));
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(Names(user), NamesOf({"2330.TW", "2454.TW"}));
  });
}

TEST_F(SearchChoiceText, TheEntryForAllBringsTheMarketsSymbolsBack) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_TRUE(user.Select(kGroup, 0));
    EXPECT_EQ(Names(user), ChipsAndCement());
  });
}

TEST_F(SearchChoiceText, AnotherMarketStartsWithAllOfItsGroups) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 2));
    ChooseMarket(user, kOtc);
    EXPECT_EQ(user.Text(kGroup), "全部商品");
    EXPECT_EQ(Names(user), NamesOf({"6488.TE", "5483.TE"}));
  });
}

TEST_F(SearchChoiceText, AMarketWithoutGroupsShowsItsOwnSymbolsAndStaysOpen) {
  Look([](User& user) {
    ChooseMarket(user, kEtf);
    EXPECT_EQ(Names(user), NamesOf({"0050.TW"}));
    EXPECT_TRUE(user.IsUp());
  });
}

TEST_F(SearchChoiceText, ACloudMarketShowsItsSymbols) {
  Look([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, Text("推薦", "推荐")));
    EXPECT_EQ(Names(user), NamesOf({"2317.TW"}));
  });
}

TEST_F(SearchChoiceText, AGroupOfKind101ShowsItsSymbols) {
  manager.AddExtraTQInfo("OTV01");
  Look([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, "海外"));
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(Names(user), NamesOf({"AAPL.NASD", "DIS.NYSE"}));
  });
}

TEST_F(SearchChoiceText, AllMarketsShowSymbolsOfEachExchange) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    ChooseMarket(user, kAll);
    const Lines names = Names(user);
    for (const char* id : {"2330.TW", "6488.TE", "TXFL6.TF", "DIS.NYSE", "AAPL.NASD", "SPY.AMEX"})
      EXPECT_TRUE(Holds(names, id)) << id;
  });
}

TEST_F(SearchChoiceText, AChoiceInABoxTakesTheResultsOfASearchAway) {
  EXPECT_EQ(OnTwins([](User& user) {
              ChooseMarket(user, kTse);
              EXPECT_EQ(Names(user), ChipsAndCement());
            }),
            kCancelled);
}

TEST_F(SearchChoiceText, AChoiceInABoxSearchesNoText) {
  Look([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "7777"));
    ChooseMarket(user, kTse);
    EXPECT_EQ(Asked(), "");
    EXPECT_EQ(user.Text(kCode), "7777");
  });
}

TEST_F(SearchChoiceText, AGroupWithoutSymbolsShowsNothingAndSaysNothing) {
  Look([this](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kMarket, Text("雲自選", "云自选")));
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchChoiceText, AGroupWhoseSymbolsTheServiceCannotTellShowsNothing) {
  standin::FailAlways("VLGetGroupSymbol");
  Look([this](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchChoiceText, GroupsThatWereLoadedAnewMeanwhileShowTheirSymbols) {
  Look([this](User& user) {
    ChooseMarket(user, kTse);
    manager.LoadGroupList();
    EXPECT_TRUE(user.Select(kGroup, 2));
    EXPECT_EQ(Names(user), NamesOf({"1101.TW"}));
  });
}

TEST_F(SearchChoiceText, GroupsThatAreGoneMeanwhileShowNothing) {
  Look([this](User& user) {
    ChooseMarket(user, kTse);
    manager.ClearGroupList();
    EXPECT_TRUE(user.Select(kGroup, 2));
    EXPECT_EQ(ResultCount(user), 0U);
  });
}

// The results are the dialog's own.
TEST_F(SearchChoiceText, AResultIsChosenWhateverTheTerminalLoadsAnew) {
  EXPECT_EQ(Run([this](User& user) {
              ChooseMarket(user, kTse);
              manager.LoadGroupList();
              EXPECT_EQ(StartWithTables(), 1);
              EXPECT_TRUE(user.DoubleClick(kResults, 2));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("1101.TW"));
}

} // namespace
