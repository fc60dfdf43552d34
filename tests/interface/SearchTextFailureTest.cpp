// The search for one symbol while the services fail, call back, or find very much.
#include <algorithm>

#include "platform/framework/window/CListCtrl.h"
#include "tests/interface/SearchText.h"
#include "tests/support/WindowCount.h"

namespace {

class SearchFailureText : public SearchText {
protected:
  // What a user does in a minute. It goes on whatever fails on the way.
  static void Session(User& user) {
    AwaitFirstSearch(user);
    user.Select(kMarket, kTe);
    user.Select(kGroup, 1);
    for (const char* text : {"7777", "77", ".Q1234", ".7777", "2", "XYZ", ""}) {
      user.Fill(kCode, text);
      user.Press(WindowKey::Enter);
    }
    user.Select(kMarket, kAll);
    user.Fill(kCode, "7777");
    user.Click(kLook);
    user.DoubleClick(kResults, -1);
    user.Press(WindowKey::Escape);
  }
  int RunSession() {
    lists = &market;
    market = CListID();
    const int code = Run(Session, "7777", kForced);
    TakeUnusedScripts();
    return code;
  }
  void ExpectThatSearchesWork() {
    market = CListID();
    EXPECT_EQ(Run([](User& user) { Enter(user, "2330"); }), kChosen);
    EXPECT_TRUE(HasRecordOf("2330.TW"));
  }
  // More listings, of codes from 100000 on.
  void ServeMany(int count) {
    standin::Market served = standin::CurrentMarket();
    standin::Instrument instrument = served.instruments.front();
    for (int i = 0; i < count; ++i) {
      instrument.code = std::to_string(100000 + i);
      instrument.nameTw = instrument.nameCn = "Stock " + instrument.code;
      served.instruments.push_back(instrument);
    }
    standin::SetMarket(served);
    Start({"A/one/2330.TW"});
  }
  static constexpr int kMany = 20000;
};

// --- Failing services ----------------------------------------------------------------------------

TEST_F(SearchFailureText, ASearchThatFailsListsNothingAndSaysNothing) {
  Look([this](User& user) {
    Enter(user, "7777");
    standin::FailAlways("VLFindSymbol");
    Enter(user, "2330");
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchFailureText, ASearchInTheUsersOrderThatFailsListsNothingAndSaysNothing) {
  PreferExchanges({2, 1});
  standin::FailAlways("VLFindSymbol2");
  Look([this](User& user) {
    Enter(user, "7777");
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchFailureText, AnExchangesCodeThatFailsListsNothingAndSaysNothing) {
  standin::FailAlways("VLEX2ZUID2");
  Look([this](User& user) {
    Enter(user, ".7777");
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

TEST_F(SearchFailureText, AFirstSearchThatFailsIsOver) {
  standin::FailAlways("VLFindSymbol");
  Look(
      [](User& user) {
        EXPECT_TRUE(AwaitFirstSearch(user));
        EXPECT_FALSE(StopTimer(user));
      },
      "7777");
}

TEST_F(SearchFailureText, AMessageBoxThatFailsSearchesNothing) {
  standin::FailAlways("tqShowDllMessage");
  Look([](User& user) {
    Enter(user, "2");
    EXPECT_EQ(Asked(), "");
  });
}

TEST_F(SearchFailureText, WithoutAnyServiceItOpensAndCloses) {
  for (const char* operation : {"VLFindSymbol", "VLFindSymbol2", "VLEX2ZUID2", "VLGetSymbolInfos",
                                "VLGetSymbolInfo", "VLGetGroupSymbol", "VLGetSubGroup"})
    standin::FailAlways(operation);
  EXPECT_EQ(RunSession(), kCancelled);
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchFailureText, AnyCallMayFail) {
  ASSERT_EQ(RunSession(), kCancelled);
  const int calls = static_cast<int>(standin::Calls().size());
  ASSERT_GT(calls, 8);
  const int step = std::max(1, calls / ManyFailures());
  for (int n = 1; n <= calls; n += step) {
    Start({"A/one/2330.TW"});
    standin::FailCall("*", n);
    EXPECT_NE(RunSession(), kChosen);
    standin::FailCall("*", 0);
    EXPECT_EQ(Chosen(), "nothing");
    ASSERT_FALSE(HasFailure()) << "call " << n;
  }
  ExpectThatSearchesWork();
}

TEST_F(SearchFailureText, EachRunGivesTheServicesArraysBack) {
  RunSession(); // loads members of groups, which the manager keeps
  const int held = standin::OutstandingArrays();
  for (int i = 0; i < 5; ++i)
    RunSession();
  EXPECT_EQ(standin::OutstandingArrays(), held);
}

TEST_F(SearchFailureText, ASingleHitGivesTheServicesArrayBack) {
  const int held = standin::OutstandingArrays();
  EXPECT_EQ(Run([](User& user) { Enter(user, "2330"); }), kChosen);
  EXPECT_EQ(Run([](User& user) { Enter(user, ".Q1234"); }), kChosen);
  EXPECT_EQ(standin::OutstandingArrays(), held);
}

TEST_F(SearchFailureText, ItLeavesNothingBehind) {
  const auto openAndClose = [this] { Run([](User& user) { user.CloseByTitleBar(); }, "7777"); };
  for (int i = 0; i < 3; ++i) // allocates what is made once and kept
    openAndClose();
  const std::size_t before = WindowResources();
  for (int i = 0; i < ManyRuns() / 20; ++i)
    openAndClose();
  EXPECT_LE(WindowResources(), before + ResourceSlack());
}

// --- A terminal that acts meanwhile --------------------------------------------------------------

TEST_F(SearchFailureText, EnterWithinASearchListsNoResultTwice) {
  Look([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "7777"));
    standin::OnCall("VLFindSymbol", [&user] { user.Press(WindowKey::Enter); });
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    standin::OnCall("VLFindSymbol", nullptr);
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchFailureText, AChoiceOfAMarketWithinASearchLosesNothing) {
  Run([](User& user) {
    EXPECT_TRUE(user.Fill(kCode, "7777"));
    standin::OnCall("VLFindSymbol", [&user] { user.Select(kMarket, kTse); });
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    standin::OnCall("VLFindSymbol", nullptr);
    EXPECT_GT(ResultCount(user), 0U);
    EXPECT_TRUE(user.DoubleClick(kResults, 0));
  });
  // Whichever of the two stands in the list, the record is that of its row.
  EXPECT_TRUE(Chosen() == "7777.TW" || Chosen() == "2330.TW") << Chosen();
}

TEST_F(SearchFailureText, ADialogThatIsEndedFromOutsideChoosesNothing) {
  Run([](User& user) {
    Enter(user, "7777");
    EXPECT_TRUE(user.ClickRow(kResults, 1));
    CDialog::FromHandle(user.Dialog().GetSafeHwnd())->EndDialog(kChosen);
  });
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchFailureText, EachOfTwoSearchesAtATimeGivesItsOwnAnswer) {
  SymbolInfo outer = {};
  WhenDialogOpens([this](User& user) {
    Enter(user, "7777");
    EXPECT_EQ(Run([](User& inner) { Enter(inner, "2330"); }), kChosen);
    EXPECT_EQ(Names(user), Twins());
    EXPECT_TRUE(user.DoubleClick(kResults, 1));
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "", &outer,
                                         0, nullptr),
            kChosen);
  EXPECT_TRUE(HasRecordOf("2330.TW"));
  EXPECT_STREQ(outer.id, "7777.TE");
}

TEST_F(SearchFailureText, EscapeWithinTheFirstSearchLeavesNoWaitCursor) {
  Run(
      [](User& user) {
        standin::OnCall("VLFindSymbol", [&user] { user.Press(WindowKey::Escape); });
        AwaitTheEnd(user);
        standin::OnCall("VLFindSymbol", nullptr);
      },
      "7777");
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
  EXPECT_EQ(Chosen(), "nothing");
}

TEST_F(SearchFailureText, TheTerminalMayLoadEverythingAnewWithinAnyCall) {
  for (const char* operation :
       {"VLFindSymbol", "VLEX2ZUID2", "VLGetSymbolInfos", "VLGetGroupSymbol", "tqShowDllMessage"}) {
    Start({"A/one/2330.TW"});
    standin::OnCall(operation, [this] {
      manager.LoadGroupList();
      manager.ReLoadDefaultExch(1);
    });
    EXPECT_EQ(RunSession(), kCancelled) << operation;
    standin::OnCall(operation, nullptr);
  }
  ExpectThatSearchesWork();
}

TEST_F(SearchFailureText, TheTerminalMayStartTheManagerAnewWithinAnyCall) {
  for (const char* operation :
       {"VLFindSymbol", "VLEX2ZUID2", "VLGetSymbolInfos", "VLGetGroupSymbol", "tqShowDllMessage"}) {
    Start({"A/one/2330.TW"});
    standin::OnCall(operation, [this] { StartWithTables(); });
    EXPECT_EQ(RunSession(), kCancelled) << operation;
    standin::OnCall(operation, nullptr);
  }
  ExpectThatSearchesWork();
}

// --- Very much -----------------------------------------------------------------------------------

TEST_F(SearchFailureText, TwentyThousandHitsAreListedInTheServicesOrder) {
  ServeMany(kMany);
  Look([](User& user) {
    Enter(user, "Stock");
    const CListCtrl table(user.Dialog(), kResults);
    ASSERT_EQ(table.GetRowCount(), kMany);
    EXPECT_EQ(Utf8(table.GetCellText(0, 1)), "Stock 100000");
    EXPECT_EQ(Utf8(table.GetCellText(kMany - 1, 1)), "Stock 119999");
  });
}

TEST_F(SearchFailureText, TheLastOfTwentyThousandHitsIsChosen) {
  ServeMany(kMany);
  EXPECT_EQ(Run([](User& user) {
              Enter(user, "Stock");
              EXPECT_TRUE(user.DoubleClick(kResults, kMany - 1));
            }),
            kChosen);
  EXPECT_TRUE(HasRecordOf("119999.TW"));
}

TEST_F(SearchFailureText, AllSymbolsOfALargeMarketAreListed) {
  ServeMany(kMany);
  Look([](User& user) {
    Enter(user, "");
    EXPECT_EQ(CListCtrl(user.Dialog(), kResults).GetRowCount(), kMany + 21);
  });
}

TEST_F(SearchFailureText, AnotherSearchEmptiesALongList) {
  ServeMany(kMany);
  Look([](User& user) {
    Enter(user, "Stock");
    Enter(user, TwinsName());
    EXPECT_EQ(Names(user), Twins());
  });
}

TEST_F(SearchFailureText, ABrokenGroupOfTheServiceShowsNothing) {
  standin::AnswerMembers(1, "ETF", {}, -1);
  Look([this](User& user) {
    ChooseMarket(user, kEtf);
    EXPECT_EQ(ResultCount(user), 0U);
    EXPECT_EQ(Shown(), "");
  });
}

} // namespace
