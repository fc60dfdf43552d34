// The editors of one list's contents: similar symbols, groups, and all symbols of a group.
#include "tests/interface/ContentEditorText.h"

#include <algorithm>

namespace {

class ContentSearchText : public ContentEditorsText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW"}); }

  Lines GroupsOf(int type) {
    Lines names;
    for (int i = 0; i < manager.GetGroupCount(type, nullptr); ++i) {
      GroupInfo info = {};
      EXPECT_EQ(manager.GetGroupInfo(type, nullptr, i, &info), 1);
      names.push_back(standin::FromAnsi(info.szName));
    }
    EXPECT_FALSE(names.empty()) << "type " << type;
    return names;
  }
  static Lines Joined(Lines all, const Lines& more) {
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  // Two symbols whose names begin alike: 7777 of both exchanges.
  static std::string Alike() { return Text("雙上", "双上"); }
  static void ExpectUnchanged(const User& user) {
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW"}));
  }
  static bool Holds(const Lines& names, const std::string& id) {
    return std::find(names.begin(), names.end(), SymbolName(id)) != names.end();
  }
};

INSTANTIATE_TEST_SUITE_P(Of, ContentSearchText,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);

// --- Without a text ------------------------------------------------------------------------------

TEST_P(ContentSearchText, WithoutATextTheUserIsAskedWhetherToSeeAll) {
  standin::AnswerMessages(kNo);
  In([this](User& user) {
    Search(user, "");
    EXPECT_EQ(Shown(), "48022/4");
  });
}

TEST_P(ContentSearchText, NoLeavesTheResultsEmpty) {
  standin::AnswerMessages(kNo);
  In([](User& user) {
    ShowGroup(user, 0, 0);
    EXPECT_EQ(user.Rows(kFound).size(), 2U);
    Search(user, "");
    EXPECT_EQ(user.Rows(kFound), Lines{});
  });
}

TEST_P(ContentSearchText, YesShowsSymbolsOfAllMarkets) {
  standin::AnswerMessages(kYes);
  In([](User& user) {
    Search(user, "");
    const Lines found = FoundNames(user);
    EXPECT_TRUE(Holds(found, "2330.TW"));
    EXPECT_TRUE(Holds(found, "5483.TE"));
  });
}

TEST_P(ContentSearchText, YesShowsTheSymbolsOfTheChosenMarket) {
  standin::AnswerMessages(kYes);
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 2));
    Search(user, "");
    EXPECT_EQ(FoundNames(user), NamesOf({"6488.TE", "5483.TE"}));
  });
}

TEST_P(ContentSearchText, SeeingAllAddsNothing) {
  standin::AnswerMessages(kYes);
  In([](User& user) {
    Search(user, "");
    ExpectUnchanged(user);
  });
}

// --- With a text ---------------------------------------------------------------------------------

TEST_P(ContentSearchText, TheServiceIsAskedForTheText) {
  In([](User& user) {
    standin::ClearCalls();
    Search(user, Alike());
    Lines texts;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation.rfind("VLFindSymbol", 0) == 0)
        texts.push_back(standin::FromAnsi(call.arguments.substr(0, call.arguments.find(','))));
    }
    EXPECT_NE(std::find(texts.begin(), texts.end(), Alike()), texts.end());
  });
}

TEST_P(ContentSearchText, SeveralSimilarSymbolsAreListed) {
  In([this](User& user) {
    Search(user, Alike());
    EXPECT_EQ(FoundNames(user), NamesOf({"7777.TW", "7777.TE"}));
    EXPECT_EQ(Shown(), "");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentSearchText, ARowIsCodeAndName) {
  In([](User& user) {
    Search(user, Alike());
    const Lines rows = user.Rows(kFound);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].substr(0, 4), "7777");
    EXPECT_EQ(rows[0].substr(rows[0].find(" | ") + 3), SymbolName("7777.TW"));
  });
}

TEST_P(ContentSearchText, AnotherSearchTakesTheRowsOfTheOneBeforeAway) {
  In([](User& user) {
    Search(user, Alike());
    Search(user, "TXO");
    EXPECT_EQ(FoundNames(user), NamesOf({"TXO21000L6.TF", "TXO21000X6.TF"}));
  });
}

TEST_P(ContentSearchText, OneSimilarSymbolIsAddedAtOnce) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Search(user, Text("富邦", "富邦"));
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2881.TW"}));
            }),
            "2330.TW,2317.TW,2881.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentSearchText, OneSimilarSymbolThatTheListHoldsIsNotAddedAgain) {
  In([](User& user) {
    Search(user, "2317");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentSearchText, WithoutSimilarSymbolsTheUserIsAskedWhetherToSeeAll) {
  standin::AnswerMessages(kNo);
  In([this](User& user) {
    Search(user, "XYZ");
    EXPECT_EQ(Shown(), "48021/4");
    EXPECT_EQ(user.Rows(kFound), Lines{});
  });
}

TEST_P(ContentSearchText, WithoutSimilarSymbolsYesShowsTheChosenMarket) {
  standin::AnswerMessages(kYes);
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 2));
    Search(user, "XYZ");
    EXPECT_EQ(FoundNames(user), NamesOf({"6488.TE", "5483.TE"}));
  });
}

TEST_P(ContentSearchText, NoLeavesNoRowsOfTheGroupThatWasShown) {
  standin::AnswerMessages(kNo);
  In([](User& user) {
    ShowGroup(user, 0, 0);
    Search(user, "XYZ");
    EXPECT_EQ(user.Rows(kFound), Lines{});
  });
}

TEST_P(ContentSearchText, AServiceThatFailsFindsNothing) {
  standin::AnswerMessages(kNo);
  standin::FailAlways("VLFindSymbol");
  standin::FailAlways("VLFindSymbol2");
  In([this](User& user) {
    Search(user, "2881");
    EXPECT_EQ(Shown(), "48021/4");
    ExpectUnchanged(user);
  });
}

// --- The boxes -----------------------------------------------------------------------------------

TEST_P(ContentSearchText, TheMarketsAreTheGroupsOfKinds1And201) {
  In([this](User& user) {
    EXPECT_EQ(user.Rows(kMarket), Joined(Joined({"所有商品"}, GroupsOf(1)), GroupsOf(201)));
  });
}

TEST_P(ContentSearchText, GroupsOfKind101StandBetweenThemForWhoHasThem) {
  manager.AddExtraTQInfo("X_OTV01_Y");
  In([this](User& user) {
    EXPECT_EQ(user.Rows(kMarket),
              Joined(Joined(Joined({"所有商品"}, GroupsOf(1)), GroupsOf(101)), GroupsOf(201)));
  });
}

TEST_P(ContentSearchText, AnotherExtraTextDoesNotShowGroupsOfKind101) {
  manager.AddExtraTQInfo("OTV02");
  In([](User& user) {
    const Lines markets = user.Rows(kMarket);
    EXPECT_EQ(std::count(markets.begin(), markets.end(), "海外"), 0);
  });
}

TEST_P(ContentSearchText, ItOpensOnAllMarketsAndAllGroups) {
  In([](User& user) {
    EXPECT_EQ(user.Text(kMarket), "所有商品");
    EXPECT_EQ(user.Text(kGroup), "全部商品");
  });
}

TEST_P(ContentSearchText, AMarketHasItsSubGroups) {
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 1));
    EXPECT_EQ(user.Rows(kGroup), (Lines{"全部商品", Text("半導體", "半导体"), "水泥"}));
  });
}

TEST_P(ContentSearchText, AMarketOfKind101HasItsSubGroups) {
  manager.AddExtraTQInfo("OTV01");
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, "海外"));
    EXPECT_EQ(user.Rows(kGroup), (Lines{"全部商品", "美股"}));
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(FoundNames(user), NamesOf({"AAPL.NASD", "DIS.NYSE"}));
  });
}

TEST_P(ContentSearchText, AllMarketsHaveNoSubGroups) {
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 1));
    EXPECT_TRUE(user.Select(kMarket, 0));
    EXPECT_EQ(user.Rows(kGroup), Lines{"全部商品"});
  });
}

TEST_P(ContentSearchText, AChosenGroupShowsItsSymbols) {
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 1));
    EXPECT_TRUE(user.Select(kGroup, 2));
    EXPECT_EQ(FoundNames(user), NamesOf({"1101.TW"}));
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(FoundNames(user), NamesOf({"2330.TW", "2454.TW"}));
  });
}

TEST_P(ContentSearchText, AMarketWithoutSubGroupsShowsItsSymbols) {
  In([](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 3));
    EXPECT_EQ(user.Rows(kGroup), Lines{"全部商品"});
    EXPECT_EQ(FoundNames(user), NamesOf({"0050.TW"}));
  });
}

TEST_P(ContentSearchText, AnotherMarketStartsWithAllOfItsGroups) {
  In([](User& user) {
    ShowGroup(user, 0, 1);
    EXPECT_TRUE(user.Select(kMarket, 2));
    EXPECT_EQ(user.Text(kGroup), "全部商品");
  });
}

TEST_P(ContentSearchText, ChoosingAGroupAddsNothing) {
  In([](User& user) {
    ShowGroup(user, 0, 0);
    ExpectUnchanged(user);
  });
}

TEST_P(ContentSearchText, GroupsThatWereLoadedAnewMeanwhileShowTheirSymbols) {
  In([this](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 1));
    manager.LoadGroupList();
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(FoundNames(user), NamesOf({"2330.TW", "2454.TW"}));
  });
}

TEST_P(ContentSearchText, AGroupThatWasLoadedAnewMeanwhileIsAdded) {
  EXPECT_EQ(After([this](User& user) {
              user.ClickRow(kRows, 2);
              ShowGroup(user, 1, 0);
              manager.LoadGroupList();
              user.Click(kAddAll);
            }),
            "2330.TW,2317.TW,6488.TE,5483.TE");
}

TEST_P(ContentSearchText, GroupsThatAreGoneMeanwhileShowNothing) {
  In([this](User& user) {
    EXPECT_TRUE(user.Select(kMarket, 1));
    manager.ClearGroupList();
    EXPECT_TRUE(user.Select(kGroup, 1));
    EXPECT_EQ(user.Rows(kFound), Lines{});
  });
}

// --- All of a group ------------------------------------------------------------------------------

TEST_P(ContentSearchText, AllSymbolsOfTheChosenGroupAreAdded) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              ShowGroup(user, 1, 0);
              EXPECT_TRUE(user.Click(kAddAll));
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "6488.TE", "5483.TE"}));
            }),
            "2330.TW,2317.TW,6488.TE,5483.TE");
}

TEST_P(ContentSearchText, SymbolsOfTheGroupThatTheListHoldsAreNotAddedAgain) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              ShowGroup(user, 0, 0);
              user.Click(kAddAll);
            }),
            "2330.TW,2317.TW,2454.TW");
}

TEST_P(ContentSearchText, AddingAGroupTwiceAddsItOnce) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              ShowGroup(user, 0, 1);
              user.Click(kAddAll);
              user.Click(kAddAll);
            }),
            "2330.TW,2317.TW,1101.TW");
}

TEST_P(ContentSearchText, AllOfAGroupAreAddedAndNotOnlyThePickedOnes) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              ShowGroup(user, 1, 0);
              user.ClickRow(kFound, 1);
              user.Click(kAddAll);
            }),
            "2330.TW,2317.TW,6488.TE,5483.TE");
}

} // namespace
