// One symbol to the user's lists, opened as a terminal does.
#include "platform/framework/window/ResourceContext.h"
#include "tests/interface/ContentEditorText.h"

namespace {

class OneSymbolText : public ContentEditorText {
protected:
  enum OwnControl { kLists = 781, kContents = 782, kNew = 801, kModify = 802, kAddHere = 803 };

  void SetUp() override { Start({"A/one/2330.TW", "B/two/1101.TW,2317.TW"}); }

  int Run(UserScript script, const char* symbol = "2881.TW") {
    WhenDialogOpens(std::move(script));
    return CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr,
                                              symbol);
  }
  // Does this and closes with Done.
  void Do(const Action& action, const char* symbol = "2881.TW") {
    EXPECT_EQ(Run(
                  [&action](User& user) {
                    action(user);
                    EXPECT_TRUE(user.Click(kDone));
                  },
                  symbol),
              1);
  }
  static void AddTo(User& user, int list) {
    EXPECT_TRUE(user.Select(kLists, list));
    EXPECT_TRUE(user.Click(kAddHere));
  }
  static Lines ContentsOf(const Lines& ids) {
    Lines rows = RowsOf(ids);
    rows.pop_back();
    return rows;
  }
  static std::string Log() { return "log DoGroupSymbolAdd \xA7\xF3\xB0\xCA SymbolList!!"; }
  const std::string untouched = "A/one/2330.TW|B/two/1101.TW,2317.TW";
};

// --- Opening -------------------------------------------------------------------------------------

TEST_F(OneSymbolText, TheButtonsHaveTheirTexts) {
  Do([](User& user) {
    EXPECT_EQ(user.Text(kAddHere), "加入(&A)");
    EXPECT_EQ(user.Text(kModify), "加入修改(&M)...");
    EXPECT_EQ(user.Text(kNew), Text("新增組合(&N)...", "新增组合(&N)..."));
    EXPECT_EQ(user.Text(kDone), "完成(&K)");
  });
}

TEST_F(OneSymbolText, TheUsersListsAreShown) {
  Do([](User& user) { EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two"})); });
}

TEST_F(OneSymbolText, ASystemListIsShownAsOne) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/mine/2317.TW"});
  Do([](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "mine" + Text("(系統)", "(系统)")}));
  });
}

TEST_F(OneSymbolText, CloudListsAreNotShown) {
  manager.AddCloudSymbolList("C", "cloud", "2330.TW", 0);
  Do([](User& user) { EXPECT_EQ(user.Rows(kLists).size(), 2U); });
}

TEST_F(OneSymbolText, TheContentsAreThoseOfTheSelectedList) {
  Do([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"1101.TW", "2317.TW"}));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"2330.TW"}));
  });
}

TEST_F(OneSymbolText, TheContentsFollowTheKeysToo) {
  Do([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"1101.TW", "2317.TW"}));
  });
}

TEST_F(OneSymbolText, ASubTitleIsShownAsItsText) {
  Start({"A/one/Chips:,2330.TW"});
  Do([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), (Lines{"Chips", "2330.TW " + SymbolName("2330.TW")}));
  });
}

TEST_F(OneSymbolText, WithoutAManagerNothingOpens) {
  EXPECT_EQ(
      CTQSymbolListMgr::DoGroupSymbolAdd(nullptr, manager.GetSymbolTableMgr(), nullptr, "2881.TW"),
      -1);
  EXPECT_EQ(standin::CountCalls("tqDoModal"), 0);
}

TEST_F(OneSymbolText, TheTerminalRunsTheDialog) {
  standin::ClearCalls();
  Do([](User&) {});
  std::string arguments;
  for (const standin::Call& call : standin::Calls())
    arguments += call.operation == "tqDoModal" ? "(" + call.arguments + ")" : "";
  EXPECT_EQ(arguments, "(0,1,0)");
}

TEST_F(OneSymbolText, ADialogThatCannotBeCreatedChangesNothing) {
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(
      CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, "2881.TW"),
      -1);
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

const char* StringOfAnotherLibrary(unsigned, int) {
  return "another library's";
}

TEST_F(OneSymbolText, TheTerminalsResourcesAreBackOnEachPath) {
  tq::Resources resources;
  resources.string = StringOfAnotherLibrary;
  const tq::ResourceContext context(resources);
  Do([](User&) { EXPECT_NE(tq::ResourceContext::Current().string, StringOfAnotherLibrary); });
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfAnotherLibrary) << "done";
  Run([](User& user) { user.Press(WindowKey::Escape); });
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfAnotherLibrary) << "cancelled";
  CTQSymbolListMgr::DoGroupSymbolAdd(nullptr, nullptr, nullptr, "2881.TW");
  EXPECT_EQ(tq::ResourceContext::Current().string, StringOfAnotherLibrary) << "no manager";
}

// --- Closing without a change --------------------------------------------------------------------

TEST_F(OneSymbolText, DoneWithoutAChangeStoresAndTellsNothing) {
  Do([](User& user) { user.Select(kLists, 1); });
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolText, EnterIsDone) {
  EXPECT_EQ(Run([](User& user) { user.Press(WindowKey::Enter); }), 1);
}

TEST_F(OneSymbolText, EscapeCancels) {
  EXPECT_EQ(Run([](User& user) { user.Press(WindowKey::Escape); }), 2);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolText, TheTitleBarCancels) {
  EXPECT_EQ(Run([](User& user) { user.CloseByTitleBar(); }), 2);
}

// --- Adding --------------------------------------------------------------------------------------

TEST_F(OneSymbolText, TheSymbolIsAddedToTheSelectedList) {
  Do([](User& user) { AddTo(user, 1); });
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(OneSymbolText, TheAddedSymbolIsSeenInTheContents) {
  Do([](User& user) {
    AddTo(user, 0);
    EXPECT_EQ(user.Rows(kContents), ContentsOf({"2330.TW", "2881.TW"}));
  });
}

TEST_F(OneSymbolText, TheSymbolCanBeAddedToSeveralLists) {
  Do([](User& user) {
    AddTo(user, 0);
    AddTo(user, 1);
  });
  EXPECT_EQ(All(), "A/one/2330.TW,2881.TW|B/two/1101.TW,2317.TW,2881.TW");
}

TEST_F(OneSymbolText, AnAddedSymbolIsSavedLoggedAndToldOnce) {
  Do([](User& user) {
    AddTo(user, 0);
    AddTo(user, 1);
  });
  EXPECT_EQ(Happened(), "saved; " + Log() + "; told 40:");
}

TEST_F(OneSymbolText, AnAddedSymbolIsInTheFile) {
  Do([](User& user) { AddTo(user, 0); });
  EXPECT_EQ(ReadBack(), "A/one/2330.TW,2881.TW|B/two/1101.TW,2317.TW");
}

TEST_F(OneSymbolText, WhatWasAddedCountsAfterACancelToo) {
  EXPECT_EQ(Run([](User& user) {
              AddTo(user, 0);
              user.Press(WindowKey::Escape);
            }),
            2);
  EXPECT_EQ(All(), "A/one/2330.TW,2881.TW|B/two/1101.TW,2317.TW");
  EXPECT_EQ(Happened(), "saved; " + Log() + "; told 40:");
}

TEST_F(OneSymbolText, NothingIsStoredBeforeTheDialogCloses) {
  Do([this](User& user) {
    AddTo(user, 0);
    EXPECT_EQ(All(), untouched);
    EXPECT_EQ(Happened(), "not saved");
  });
}

TEST_F(OneSymbolText, ASaveThatFailsIsToldAndTheTerminalHearsAllTheSame) {
  Do([this](User& user) {
    AddTo(user, 0);
    directory.Remove();
  });
  EXPECT_EQ(Shown(), "48026/0");
  EXPECT_EQ(All(), "A/one/2330.TW,2881.TW|B/two/1101.TW,2317.TW");
  EXPECT_NE(Happened().find(Log() + "; told 40:"), std::string::npos);
}

TEST_F(OneSymbolText, TheLetterOfTheButtonAdds) {
  Do([](User& user) {
    user.Select(kLists, 1);
    user.PressLetter('A');
  });
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW");
}

TEST_F(OneSymbolText, TheDefaultListStaysTheDefault) {
  manager.SetDefaultIndex(1);
  Do([](User& user) { AddTo(user, 0); });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(OneSymbolText, AddingLosesNeitherSubTitlesNorUnknownSymbols) {
  Start({"A/one/Chips:,GONE.TW,2330.TW"});
  Do([](User& user) { AddTo(user, 0); });
  EXPECT_EQ(All(), "A/one/Chips:,GONE.TW,2330.TW,2881.TW");
}

TEST_F(OneSymbolText, TheFirstSymbolOfAListIsAdded) {
  Start({"A/one/"});
  Do([](User& user) { AddTo(user, 0); });
  EXPECT_EQ(All(), "A/one/2881.TW");
}

// --- Already there -------------------------------------------------------------------------------

TEST_F(OneSymbolText, ASymbolThatTheListHoldsIsReported) {
  Do(
      [this](User& user) {
        AddTo(user, 1);
        const std::string shown = Shown();
        const std::string start = Text("[以下的商品重複加入:\n", "[以下的商品重复加入:\n");
        EXPECT_EQ(shown.substr(0, start.size()), start);
        EXPECT_NE(shown.find("2317"), std::string::npos) << shown;
        EXPECT_EQ(shown.substr(shown.size() - 3), "]/0");
      },
      "2317.TW");
}

TEST_F(OneSymbolText, ASymbolThatTheListHoldsIsNotAddedAgain) {
  Do([](User& user) { AddTo(user, 1); }, "2317.TW");
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolText, ASymbolInSmallLettersIsTheSameSymbol) {
  Do(
      [this](User& user) {
        AddTo(user, 1);
        EXPECT_NE(Shown(), "");
      },
      "2317.tw");
  EXPECT_EQ(All(), untouched);
}

TEST_F(OneSymbolText, AddingTwiceIsReportedTheSecondTime) {
  Do([this](User& user) {
    AddTo(user, 0);
    EXPECT_EQ(Shown(), "");
    AddTo(user, 0);
    EXPECT_NE(Shown(), "");
  });
  EXPECT_EQ(All(), "A/one/2330.TW,2881.TW|B/two/1101.TW,2317.TW");
}

TEST_F(OneSymbolText, ASymbolThatOnlyAnotherListHoldsIsAdded) {
  Do([](User& user) { AddTo(user, 0); }, "2317.TW");
  EXPECT_EQ(All(), "A/one/2330.TW,2317.TW|B/two/1101.TW,2317.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(OneSymbolText, AnUnknownSymbolThatTheListHoldsIsReported) {
  Start({"A/one/2330.TW,GONE.TW"});
  Do(
      [this](User& user) {
        AddTo(user, 0);
        EXPECT_NE(Shown().find("GONE.TW"), std::string::npos);
      },
      "GONE.TW");
  EXPECT_EQ(All(), "A/one/2330.TW,GONE.TW");
}

// --- Nothing to add to ---------------------------------------------------------------------------

TEST_F(OneSymbolText, WithoutListsNothingIsAdded) {
  Start({});
  Do([](User& user) {
    EXPECT_EQ(user.Rows(kLists), Lines{});
    EXPECT_EQ(user.Rows(kContents), Lines{});
    user.Click(kAddHere);
    user.Click(kModify);
  });
  EXPECT_EQ(All(), "");
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(OneSymbolText, WithoutASymbolNothingIsAdded) {
  Do(
      [](User& user) {
        user.Select(kLists, 0);
        user.Click(kAddHere);
      },
      nullptr);
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
