// The search for one symbol: the steps in which a text is searched, and what the service is asked.
#include "tests/interface/SearchText.h"

namespace {

class SearchStepsText : public SearchText {
protected:
  // The record that ends the dialog when this text is searched; "nothing" when none does.
  std::string Hit(const std::string& text, int entry = kAll) {
    Run([&](User& user) {
      ChooseMarket(user, entry);
      Enter(user, text);
      asked = Asked();
      if (user.IsUp())
        user.Press(WindowKey::Escape);
    });
    return Chosen();
  }
  // The names that are listed when it is searched.
  Lines Listed(const std::string& text, int entry = kAll) {
    Lines names;
    Look([&](User& user) {
      ChooseMarket(user, entry);
      Enter(user, text);
      asked = Asked();
      names = Names(user);
    });
    return names;
  }

  std::string asked; // by the last search
};

// --- Over all exchanges --------------------------------------------------------------------------

TEST_F(SearchStepsText, ATextIsSearchedOverAllExchanges) {
  EXPECT_EQ(Listed("7777"), Twins());
  EXPECT_EQ(asked, "VLFindSymbol(7777,0,0,-1)");
}

TEST_F(SearchStepsText, TheServiceIsToldTheTerminalsSwitch) {
  manager.SetbCN(1);
  EXPECT_EQ(Listed("7777"), Twins());
  EXPECT_EQ(asked, "VLFindSymbol(7777,0,1,-1)");
}

TEST_F(SearchStepsText, AFullIdIsFound) {
  EXPECT_EQ(Hit("7777.TE"), "7777.TE");
  EXPECT_EQ(asked, "VLFindSymbol(7777.TE,0,0,-1)");
}

// --- In the user's order of exchanges ------------------------------------------------------------

TEST_F(SearchStepsText, HitsComeInTheOrderOfTheUsersExchanges) {
  PreferExchanges({2, 1});
  EXPECT_EQ(Listed("7777"), NamesOf({"7777.TE", "7777.TW"}));
}

TEST_F(SearchStepsText, TheUsersExchangesAreJoinedByCommas) {
  PreferExchanges({10, 2, 1});
  EXPECT_EQ(Listed("7777").size(), 2U);
  EXPECT_EQ(asked.rfind("VLFindSymbol2(7777,10,2,1,0,", 0), 0U) << asked;
  EXPECT_EQ(asked.find("VLFindSymbol("), std::string::npos);
}

TEST_F(SearchStepsText, AnExchangeThatTheUserLeftOutIsNotSearched) {
  PreferExchanges({2});
  EXPECT_EQ(Hit("7777"), "7777.TE");
  EXPECT_EQ(asked.rfind("VLFindSymbol2(7777,2,0,", 0), 0U) << asked;
}

TEST_F(SearchStepsText, NothingElseIsSearchedWhenTheUsersExchangesHaveNoHit) {
  PreferExchanges({2});
  EXPECT_EQ(Listed("2454"), Lines{});
  EXPECT_EQ(asked.find("VLFindSymbol("), std::string::npos) << asked;
}

TEST_F(SearchStepsText, TheFirstSearchKeepsTheUsersOrderToo) {
  PreferExchanges({2, 1});
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_EQ(Names(user), NamesOf({"7777.TE", "7777.TW"}));
      },
      "7777");
}

// --- The exchange's own code ---------------------------------------------------------------------

TEST_F(SearchStepsText, ADotAndAnExchangesCodeFindItsSymbol) {
  EXPECT_EQ(Hit(".Q1234"), "DIS.NYSE");
  EXPECT_TRUE(HasRecordOf("DIS.NYSE"));
}

TEST_F(SearchStepsText, OnlyTheCodeBehindTheDotIsAskedFor) {
  EXPECT_EQ(Listed(".7777"), Twins());
  EXPECT_EQ(asked, "VLEX2ZUID2(7777)");
}

TEST_F(SearchStepsText, AnUnknownExchangesCodeIsSearchedNowhereElse) {
  EXPECT_EQ(Listed(".777"), Lines{});
  EXPECT_EQ(asked, "VLEX2ZUID2(777)");
}

TEST_F(SearchStepsText, AnExchangesCodeIgnoresTheMarket) {
  EXPECT_EQ(Listed(".7777", kTe), Twins());
  EXPECT_EQ(asked, "VLEX2ZUID2(7777)");
}

TEST_F(SearchStepsText, AnExchangesCodeIgnoresTheUsersExchanges) {
  PreferExchanges({2});
  EXPECT_EQ(Listed(".7777"), Twins());
}

TEST_F(SearchStepsText, AnExchangesCodeMayHoldADot) {
  EXPECT_EQ(Hit(".BRK.B"), "BRK.B.NYSE");
  EXPECT_EQ(asked, "VLEX2ZUID2(BRK.B)");
}

TEST_F(SearchStepsText, AnExchangesCodeIsListedWhenTheListIsForced) {
  Look(
      [](User& user) {
        Enter(user, ".Q1234");
        EXPECT_EQ(Names(user), NamesOf({"DIS.NYSE"}));
      },
      "", kForced);
}

// --- In a market ---------------------------------------------------------------------------------

TEST_F(SearchStepsText, ABareCodeIsLookedUpInTheMarketFirst) {
  EXPECT_EQ(Hit("7777", kTe), "7777.TE");
  EXPECT_TRUE(HasRecordOf("7777.TE"));
  EXPECT_EQ(asked, "VLGetSymbolInfos(7777.TE)");
}

TEST_F(SearchStepsText, ABareCodeInAMarketIsListedWhenTheListIsForced) {
  Look(
      [](User& user) {
        ChooseMarket(user, kTe);
        Enter(user, "7777");
        EXPECT_EQ(Names(user), NamesOf({"7777.TE"}));
      },
      "", kForced);
}

TEST_F(SearchStepsText, AGroupOfTheMarketDoesNotNarrowTheSearch) {
  Run([](User& user) {
    ChooseMarket(user, kTe);
    EXPECT_TRUE(user.Select(kGroup, 1));
    Enter(user, "6488");
  });
  EXPECT_EQ(Chosen(), "6488.TE");
}

TEST_F(SearchStepsText, ABareCodeInAMarketGoesBeforeTheUsersExchanges) {
  PreferExchanges({1});
  EXPECT_EQ(Hit("7777", kTe), "7777.TE");
  EXPECT_EQ(asked, "VLGetSymbolInfos(7777.TE)");
}

TEST_F(SearchStepsText, ABareCodeThatTheMarketDoesNotHaveIsSearchedEverywhere) {
  EXPECT_EQ(Hit("2454", kTe), "2454.TW");
  EXPECT_EQ(asked, "VLFindSymbol(2454,0,0,-1)");
}

TEST_F(SearchStepsText, ABareCodeThatTheMarketDoesNotHaveIsSearchedOnTheUsersExchanges) {
  PreferExchanges({1});
  EXPECT_EQ(Hit("2454", kTe), "2454.TW");
  EXPECT_EQ(asked.rfind("VLFindSymbol2(2454,1,0,", 0), 0U) << asked;
}

TEST_F(SearchStepsText, ANameIsSearchedEverywhereWhateverTheMarket) {
  EXPECT_EQ(Listed(TwinsName(), kTe), Twins());
}

TEST_F(SearchStepsText, ATextWithADotIsNotLookedUpInTheMarket) {
  EXPECT_EQ(Hit("7777.TW", kTe), "7777.TW");
  EXPECT_EQ(asked, "VLFindSymbol(7777.TW,0,0,-1)");
}

TEST_F(SearchStepsText, AMarketThatIsNoExchangeHoldsNoCode) {
  EXPECT_EQ(Listed("7777", kTse), Twins());
  EXPECT_EQ(asked, "VLFindSymbol(7777,0,0,-1)");
}

TEST_F(SearchStepsText, WithoutAMarketNothingIsLookedUp) {
  EXPECT_EQ(Hit("2454"), "2454.TW");
  EXPECT_EQ(asked, "VLFindSymbol(2454,0,0,-1)");
}

TEST_F(SearchStepsText, AMarketThatIsTakenBackIsNoneAnyMore) {
  Look([](User& user) {
    ChooseMarket(user, kTe);
    ChooseMarket(user, kAll);
    Enter(user, "7777");
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchStepsText, ACodeWhoseRecordTheServiceCannotTellIsSearchedEverywhere) {
  standin::FailAlways("VLGetSymbolInfos");
  EXPECT_EQ(Listed("7777", kTe), Twins());
  EXPECT_EQ(asked, "VLGetSymbolInfos(7777.TE) VLFindSymbol(7777,0,0,-1)");
}

TEST_F(SearchStepsText, WithoutTablesAMarketHoldsNoCode) {
  WhenDialogOpens([](User& user) {
    ChooseMarket(user, kTe);
    Enter(user, "7777");
    EXPECT_EQ(Names(user), Twins());
    user.Press(WindowKey::Escape);
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSearchUI(&manager, nullptr, nullptr, "", &result, 0, lists),
            kCancelled);
}

} // namespace
