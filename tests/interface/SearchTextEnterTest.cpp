// The search for one symbol: what Enter in the field of the code does.
#include "platform/framework/window/CEdit.h"
#include "tests/interface/SearchText.h"

namespace {

class SearchEnterText : public SearchText {
protected:
  // The names after Enter on this text.
  Lines Found(const std::string& text) {
    Lines names;
    Look([&](User& user) {
      Enter(user, text);
      names = Names(user);
    });
    return names;
  }
};

// --- How long the text is ------------------------------------------------------------------------

TEST_F(SearchEnterText, TwoCharactersAreSearched) {
  Look([this](User& user) {
    Enter(user, "TX");
    EXPECT_EQ(Asked(), "VLFindSymbol(TX,0,0,-1)");
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchEnterText, TwoDoubleByteCharactersAreSearched) {
  EXPECT_EQ(Found(TwinsName()), Twins());
  EXPECT_EQ(Shown(), "");
}

TEST_F(SearchEnterText, OneCharacterIsToldToBeTooShortAndNotSearched) {
  Look([this](User& user) {
    Enter(user, "2");
    EXPECT_EQ(Shown(), "48065/0");
    EXPECT_EQ(Asked(), "");
  });
}

TEST_F(SearchEnterText, OneDoubleByteCharacterIsTooShortToo) {
  Look([this](User& user) {
    Enter(user, Text("雙", "双"));
    EXPECT_EQ(Shown(), "48065/0");
    EXPECT_EQ(Asked(), "");
  });
}

TEST_F(SearchEnterText, ADotAloneIsTooShort) {
  Look([this](User& user) {
    Enter(user, ".");
    EXPECT_EQ(Shown(), "48065/0");
    EXPECT_EQ(Asked(), "");
  });
}

TEST_F(SearchEnterText, OneCharacterAmongBlanksIsTooShort) {
  Look([this](User& user) {
    Enter(user, "  2  ");
    EXPECT_EQ(Shown(), "48065/0");
    EXPECT_EQ(Asked(), "");
  });
}

TEST_F(SearchEnterText, ATextThatIsTooShortLeavesTheResultsAsTheyAre) {
  Look([](User& user) {
    Enter(user, "7777");
    Enter(user, "2");
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchEnterText, EnterHeldDownOnOneCharacterSearchesNothing) {
  Look([](User& user) {
    Enter(user, "2");
    for (int i = 0; i < 20; ++i)
      EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(Asked(), "");
  });
}

// --- Blanks --------------------------------------------------------------------------------------

TEST_F(SearchEnterText, BlanksAtBothEndsAreNotSearched) {
  Look([](User& user) {
    Enter(user, "  7777   ");
    EXPECT_EQ(Asked(), "VLFindSymbol(7777,0,0,-1)");
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchEnterText, BlanksWithinTheTextAreSearched) {
  Look(
      [](User& user) {
        Enter(user, "指期 1");
        EXPECT_EQ(Asked(), "VLFindSymbol(指期 1,0,0,-1)");
      },
      "", kForced);
}

TEST_F(SearchEnterText, BlanksAroundADotAreNotSearched) {
  Look([](User& user) {
    Enter(user, " .7777 ");
    EXPECT_EQ(Asked(), "VLEX2ZUID2(7777)");
  });
}

TEST_F(SearchEnterText, BlanksAroundDoubleByteTextAreNotSearched) {
  EXPECT_EQ(Found(" " + TwinsName() + " "), Twins());
}

// --- An empty text -------------------------------------------------------------------------------

TEST_F(SearchEnterText, AnEmptyTextShowsAllSymbolsOfAllMarkets) {
  EXPECT_EQ(Found("").size(), standin::CurrentMarket().instruments.size());
}

TEST_F(SearchEnterText, AnEmptyTextShowsTheChosenMarket) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    Enter(user, "XYZ");
    EXPECT_EQ(ResultCount(user), 0U);
    Enter(user, "");
    EXPECT_EQ(Names(user), ChipsAndCement());
  });
}

TEST_F(SearchEnterText, AnEmptyTextShowsTheChosenGroup) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Select(kGroup, 2));
    Enter(user, "XYZ");
    Enter(user, "");
    EXPECT_EQ(Names(user), NamesOf({"1101.TW"}));
  });
}

TEST_F(SearchEnterText, BlanksAloneAreAnEmptyText) {
  Look([this](User& user) {
    ChooseMarket(user, kTse);
    Enter(user, "   ");
    EXPECT_EQ(Names(user), ChipsAndCement());
    EXPECT_EQ(Asked(), "");
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchEnterText, AMarketOfOneSymbolDoesNotCloseTheDialog) {
  Look([](User& user) {
    ChooseMarket(user, kEtf);
    Enter(user, "");
    EXPECT_EQ(Names(user), NamesOf({"0050.TW"}));
  });
}

// --- Hits ----------------------------------------------------------------------------------------

TEST_F(SearchEnterText, SeveralHitsAreListedInTheServicesOrder) {
  EXPECT_EQ(Found("TXO21000"), NamesOf({"TXO21000L6.TF", "TXO21000X6.TF"}));
}

TEST_F(SearchEnterText, ARowIsCodeAndName) {
  Look([](User& user) {
    Enter(user, "7777");
    ASSERT_EQ(ResultCount(user), 2U);
    const std::string row = user.Rows(kResults)[0];
    EXPECT_EQ(row.substr(0, 4), "7777");
    EXPECT_EQ(row.substr(row.find(" | ") + 3), SymbolName("7777.TW"));
  });
}

TEST_F(SearchEnterText, ASingleHitClosesTheDialogWithIt) {
  EXPECT_EQ(Run([](User& user) {
              Enter(user, "2454");
              EXPECT_FALSE(user.IsUp());
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2454.TW"));
}

TEST_F(SearchEnterText, ASingleHitByNameClosesTheDialogWithIt) {
  EXPECT_EQ(Run([](User& user) { Enter(user, Text("許功", "许功")); }), kChosen);
  EXPECT_TRUE(HasRecordOf("1436.TW"));
}

TEST_F(SearchEnterText, ASingleHitNeedsNoRecordOfTheTerminals) {
  WhenDialogOpens([](User& user) { Enter(user, "2454"); });
  EXPECT_EQ(CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "",
                                         nullptr, 0, nullptr),
            kChosen);
}

TEST_F(SearchEnterText, ASingleHitIsListedWhenTheListIsForced) {
  Look(
      [](User& user) {
        Enter(user, "2454");
        EXPECT_EQ(Names(user), NamesOf({"2454.TW"}));
      },
      "", kForced);
}

TEST_F(SearchEnterText, EnterHeldDownOnASingleHitEndsTheDialogOnce) {
  EXPECT_EQ(Run([](User& user) {
              Enter(user, "2454");
              for (int i = 0; i < 20; ++i)
                EXPECT_FALSE(user.Press(WindowKey::Enter));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2454.TW"));
}

TEST_F(SearchEnterText, EnterHeldDownOnSeveralHitsListsThemOnce) {
  Look([](User& user) {
    Enter(user, "7777");
    for (int i = 0; i < 20; ++i)
      EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchEnterText, AnotherSearchTakesTheRowsOfTheOneBeforeAway) {
  Look([](User& user) {
    Enter(user, "7777");
    Enter(user, "TXF");
    EXPECT_EQ(Names(user), NamesOf({"TXFL6.TF", "TXFA7.TF"}));
  });
}

TEST_F(SearchEnterText, WithoutAHitTheListIsEmptyAndNothingIsSaid) {
  Look([this](User& user) {
    Enter(user, "7777");
    Enter(user, "XYZ");
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchEnterText, PercentSignsAreSearchedAsTheyAre) {
  GiveMarket("TE,");
  Look([](User& user) {
    Enter(user, "%s%n%d");
    EXPECT_EQ(Asked(), "VLFindSymbol(%s%n%d,0,0,-1)");
    EXPECT_EQ(ResultCount(user), 0U);
  });
}

// --- Behind a search -----------------------------------------------------------------------------

TEST_F(SearchEnterText, WhatIsTypedNextReplacesTheText) {
  Look([](User& user) {
    Enter(user, "7777");
    EXPECT_TRUE(user.Type("TXO"));
    EXPECT_EQ(user.Text(kCode), "TXO");
  });
}

TEST_F(SearchEnterText, WhatIsTypedBehindASearchWithoutAHitReplacesTheText) {
  Look([](User& user) {
    Enter(user, "XYZ");
    EXPECT_TRUE(CEdit(user.Dialog(), kCode).IsAllSelected());
    EXPECT_TRUE(user.Type("TXO"));
    EXPECT_EQ(user.Text(kCode), "TXO");
  });
}

// --- The button ----------------------------------------------------------------------------------

TEST_F(SearchEnterText, TheButtonSearchesToo) {
  Look([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "7777"));
    EXPECT_TRUE(user.Click(kLook));
    EXPECT_EQ(Asked(), "VLFindSymbol(7777,0,0,-1)");
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchEnterText, TheButtonClosesTheDialogWithASingleHit) {
  EXPECT_EQ(Run([](User& user) {
              EXPECT_TRUE(user.Fill(kCode, "2454"));
              EXPECT_TRUE(user.Click(kLook));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2454.TW"));
}

TEST_F(SearchEnterText, TheButtonSelectsTheText) {
  Look([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "7777"));
    EXPECT_TRUE(user.Click(kLook));
    EXPECT_TRUE(CEdit(user.Dialog(), kCode).IsAllSelected());
  });
}

// --- Enter elsewhere -----------------------------------------------------------------------------

TEST_F(SearchEnterText, EnterInABoxChoosesNothing) {
  Look([](User& user) {
    ChooseMarket(user, kTse);
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  });
}

// A record must not come from nowhere.
TEST_F(SearchEnterText, EnterInTheResultsEndsTheDialogWithTheirRowOrNotAtAll) {
  const int code = Run([](User& user) {
    Enter(user, "7777");
    EXPECT_TRUE(user.ClickRow(kResults, 1));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    if (user.IsUp())
      user.Press(WindowKey::Escape);
  });
  EXPECT_EQ(Chosen(), code == kChosen ? "7777.TE" : "nothing");
}

} // namespace
