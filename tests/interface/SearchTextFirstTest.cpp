// The search for one symbol: the search that it begins with when it is opened with an input.
#include "platform/framework/window/CEdit.h"
#include "tests/interface/SearchText.h"

namespace {

class SearchFirstText : public SearchText {
protected:
  enum { kFirstSearch = 0x41E }; // the message by which the dialog begins
};

// --- Before it -----------------------------------------------------------------------------------

TEST_F(SearchFirstText, TheInputStandsInTheField) {
  Look([](User& user) { EXPECT_EQ(user.Text(kCode), "7777"); }, "7777");
}

TEST_F(SearchFirstText, TheDialogIsThereBeforeAnythingIsSearched) {
  Look(
      [](User& user) {
        EXPECT_EQ(Asked(), "");
        EXPECT_EQ(ResultCount(user), 0U);
      },
      "7777");
}

TEST_F(SearchFirstText, ATimerRuns) {
  Look([](User& user) { EXPECT_TRUE(StopTimer(user)); }, "7777");
}

TEST_F(SearchFirstText, WithoutGroupsItIsSearchedAllTheSame) {
  manager.ClearGroupList();
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), Twins());
      },
      "7777");
}

// --- While it runs -------------------------------------------------------------------------------

TEST_F(SearchFirstText, TheWaitCursorIsShown) {
  WindowCursor shape = WindowCursor::Arrow;
  standin::OnCall("VLFindSymbol", [&shape] { shape = GetWindowCursor(); });
  Look([](User& user) { EXPECT_TRUE(AwaitFirstSearch(user)); }, "7777");
  EXPECT_EQ(shape, WindowCursor::Wait);
}

TEST_F(SearchFirstText, ItIsRunOnce) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Asked(), "VLFindSymbol(7777,0,0,-1)");
      },
      "7777");
}

TEST_F(SearchFirstText, TheMessageOfTheTimerRunsItOnce) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitWaitCursor(user)); // the timer has posted it
        user.Dialog().Send(kFirstSearch);
        EXPECT_EQ(Asked(), "VLFindSymbol(7777,0,0,-1)");
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Asked(), "VLFindSymbol(7777,0,0,-1)");
      },
      "7777");
}

// --- Behind it -----------------------------------------------------------------------------------

TEST_F(SearchFirstText, TheTimerIsStopped) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_FALSE(StopTimer(user));
      },
      "7777");
}

TEST_F(SearchFirstText, SeveralHitsAreListedAndTheFirstIsSelected) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), Twins());
        EXPECT_EQ(user.SelectedRows(kResults), std::vector<int>{0});
      },
      "7777");
}

TEST_F(SearchFirstText, AHitByNameIsListed) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), Twins());
      },
      TwinsName());
}

TEST_F(SearchFirstText, TheInputIsSelected) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_TRUE(CEdit(user.Dialog(), kCode).IsAllSelected());
      },
      "7777");
}

TEST_F(SearchFirstText, WithoutAHitTheListIsEmptyAndNothingIsSaid) {
  Look(
      [this](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(ResultCount(user), 0U);
        EXPECT_FALSE(StopTimer(user));
        EXPECT_EQ(Shown(), "");
      },
      "XYZ");
}

TEST_F(SearchFirstText, ASingleHitClosesTheDialog) {
  EXPECT_EQ(Run(AwaitTheEnd, "2330"), kChosen);
  EXPECT_TRUE(HasRecordOf("2330.TW"));
}

TEST_F(SearchFirstText, ASingleHitLeavesNoWaitCursor) {
  EXPECT_EQ(Run(AwaitTheEnd, "2330"), kChosen);
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
}

TEST_F(SearchFirstText, ASingleHitIsListedWhenTheListIsForced) {
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), NamesOf({"2330.TW"}));
        EXPECT_EQ(user.SelectedRows(kResults), std::vector<int>{0});
      },
      "2330", kForced);
}

// The shortest text that may be searched is a rule for what is typed.
TEST_F(SearchFirstText, AnInputOfOneCharacterIsSearched) {
  Look(
      [this](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Asked(), "VLFindSymbol(2,0,0,-1)");
        EXPECT_EQ(Shown(), "");
      },
      "2");
}

TEST_F(SearchFirstText, ADotAloneFindsNothingAndSaysNothing) {
  Look(
      [this](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(ResultCount(user), 0U);
        EXPECT_EQ(Shown(), "");
      },
      ".");
}

TEST_F(SearchFirstText, AnExchangesCodeIsFound) {
  EXPECT_EQ(Run(AwaitTheEnd, ".Q1234"), kChosen);
  EXPECT_TRUE(HasRecordOf("DIS.NYSE"));
}

TEST_F(SearchFirstText, TheGivenMarketCounts) {
  GiveMarket("TE,");
  EXPECT_EQ(Run(AwaitTheEnd, "7777"), kChosen);
  EXPECT_EQ(Chosen(), "7777.TE");
}

TEST_F(SearchFirstText, AMarketThatIsChosenMeanwhileCounts) {
  EXPECT_EQ(Run(
                [](User& user) {
                  ChooseMarket(user, kTe);
                  AwaitTheEnd(user);
                },
                "7777"),
            kChosen);
  EXPECT_EQ(Chosen(), "7777.TE");
}

TEST_F(SearchFirstText, AVeryLongInputFindsNothing) {
  GiveMarket("TE,");
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(ResultCount(user), 0U);
      },
      std::string(20000, 'x'));
}

// --- Of an empty input ---------------------------------------------------------------------------

TEST_F(SearchFirstText, AnInputThatIsTakenBackShowsTheMarketAndGroup) {
  GiveMarket("TSE,CHIP");
  Look(
      [](User& user) {
        EXPECT_TRUE(user.Fill(kCode, ""));
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), NamesOf({"2330.TW", "2454.TW"}));
        EXPECT_EQ(user.SelectedRows(kResults), std::vector<int>{0});
        EXPECT_EQ(Asked(), "");
      },
      "7777");
}

TEST_F(SearchFirstText, AMarketOfOneSymbolDoesNotCloseTheDialog) {
  GiveMarket("ETF,");
  Look(
      [](User& user) {
        EXPECT_TRUE(user.Fill(kCode, ""));
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), NamesOf({"0050.TW"}));
      },
      "7777");
}

// --- Left before it ------------------------------------------------------------------------------

TEST_F(SearchFirstText, EscapeBeforeItSearchesNothing) {
  EXPECT_EQ(Run([](User& user) { user.Press(WindowKey::Escape); }, "2330"), kCancelled);
  EXPECT_EQ(Asked(), "");
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchFirstText, TheTitleBarBeforeItSearchesNothing) {
  EXPECT_EQ(Run([](User& user) { user.CloseByTitleBar(); }, "2330"), kCancelled);
  EXPECT_EQ(Asked(), "");
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchFirstText, EscapeBetweenTheTimerAndItLeavesNoWaitCursor) {
  EXPECT_EQ(Run(
                [](User& user) {
                  EXPECT_TRUE(AwaitWaitCursor(user));
                  user.Press(WindowKey::Escape);
                },
                "7777"),
            kCancelled);
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
}

TEST_F(SearchFirstText, EnterBeforeItShowsNoResultTwice) {
  Look(
      [](User& user) {
        EXPECT_TRUE(user.Click(kCode));
        for (int i = 0; i < 5; ++i)
          EXPECT_TRUE(user.Press(WindowKey::Enter));
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), Twins());
      },
      "7777");
}

TEST_F(SearchFirstText, EnterOnASingleHitBeforeItEndsTheDialogOnce) {
  EXPECT_EQ(Run(
                [](User& user) {
                  EXPECT_TRUE(user.Click(kCode));
                  for (int i = 0; i < 5; ++i)
                    user.Press(WindowKey::Enter);
                  EXPECT_FALSE(user.IsUp());
                },
                "2330"),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2330.TW"));
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
}

} // namespace
