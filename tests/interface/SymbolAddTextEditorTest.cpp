// Symbols to one of the user's lists by way of the editor of a list's contents, and to a new list.
#include "tests/interface/SymbolAddText.h"

namespace {

class SymbolAddEditorText : public SymbolAddText {
protected:
  static void Accept(User& contents) { EXPECT_TRUE(contents.Click(kDone)); }
  static void CancelIt(User& contents) { EXPECT_TRUE(contents.Click(kCancel)); }
  static Action AcceptAs(const std::string& name) {
    return [name](User& contents) {
      EXPECT_TRUE(contents.Fill(kName, name));
      Accept(contents);
    };
  }
  // Opens the editor by a button, does this in it, and then `after` in the dialog if it is up.
  int With(int button, const Action& inEditor, const Action& after,
           const std::string& symbols = "2881.TW") {
    return Run(
        [&](User& user) {
          WhenDialogOpens(inEditor);
          EXPECT_TRUE(user.Click(button));
          after(user);
          if (user.IsUp())
            user.Click(kClose);
        },
        symbols);
  }
  // The same where the dialog is to close by itself.
  int Modify(const Action& inEditor, const std::string& symbols = "2881.TW") {
    return With(
        kModify, inEditor, [](User& user) { EXPECT_FALSE(user.IsUp()); }, symbols);
  }
  int MakeNew(
      const Action& inEditor, const Action& after = [](User&) {}) {
    return With(kNewList, inEditor, after);
  }
  static bool HasRow(const User& contents, const std::string& id) {
    for (const std::string& row : contents.Rows(kRows)) {
      if (row.rfind(id, 0) == 0)
        return true;
    }
    return false;
  }
};

// --- Add and edit --------------------------------------------------------------------------------

TEST_F(SymbolAddEditorText, TheEditorOpensOnTheSelectedListWithTheSymbols) {
  EXPECT_EQ(Modify(
                [](User& contents) {
                  EXPECT_EQ(contents.Title(), Text("修改自選商品組合", "修改自选商品组合"));
                  EXPECT_EQ(contents.Text(kName), "two");
                  for (const char* id : {"1101.TW", "2317.TW", "2881.TW", "6488.TE"})
                    EXPECT_TRUE(HasRow(contents, id)) << id;
                  EXPECT_EQ(contents.Rows(kRows).size(), 5U);
                  Accept(contents);
                },
                "2881.TW,6488.TE"),
            kClosed);
}

TEST_F(SymbolAddEditorText, OkInTheEditorStoresTheListAndClosesWithOk) {
  EXPECT_EQ(Modify(Accept), kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW");
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddEditorText, ANameThatIsChangedInTheEditorIsStored) {
  EXPECT_EQ(Modify(AcceptAs("zwei")), kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/zwei/1101.TW,2317.TW,2881.TW|C/three/2454.TW");
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddEditorText, TheListThatTheUserSelectsIsEdited) {
  EXPECT_EQ(Run([](User& user) {
              EXPECT_TRUE(user.Select(kLists, 2));
              WhenDialogOpens(Accept);
              EXPECT_TRUE(user.Click(kModify));
            }),
            kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW|C/three/2454.TW,2881.TW");
}

TEST_F(SymbolAddEditorText, CancelInTheEditorLeavesTheDialogUpAndTheListAsItWas) {
  With(kModify, CancelIt, [](User& user) {
    EXPECT_TRUE(user.IsUp());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    ExpectContents(user, {"1101.TW", "2317.TW"});
  });
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), NothingCommitted());
}

TEST_F(SymbolAddEditorText, BehindACancelledEditorTheSymbolsCanBeAdded) {
  With(kModify, CancelIt, AddThem);
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddEditorText, ANameOfAnotherListIsRefusedInTheEditor) {
  With(
      kModify,
      [this](User& contents) {
        EXPECT_TRUE(contents.Fill(kName, "one"));
        EXPECT_TRUE(contents.Click(kDone));
        EXPECT_EQ(Shown(), "48011/0");
        EXPECT_TRUE(contents.IsUp());
        CancelIt(contents);
      },
      [](User&) {});
  EXPECT_EQ(All(), untouched);
}

TEST_F(SymbolAddEditorText, WhatTheUserSeesOfNoSymbolStaysInTheList) {
  Start({"A/one/2330.TW", "B/two/Chips:,GONE.TW,2317.TW"});
  EXPECT_EQ(Modify(Accept), kClosed);
  EXPECT_EQ(Symbols("B"), "Chips:,GONE.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddEditorText, AnEditorThatIsEndedFromOutsideChangesNothing) {
  With(
      kModify,
      [](User& contents) {
        CDialog::FromHandle(contents.Dialog().GetSafeHwnd())->EndDialog(CDialog::Accepted);
      },
      [](User&) {});
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), NothingCommitted());
}

TEST_F(SymbolAddEditorText, WithoutListsNoneIsEdited) {
  Start({});
  Run([](User& user) {
    EXPECT_FALSE(user.Click(kModify) && !user.IsUp());
    user.Click(kClose);
  });
  EXPECT_EQ(All(), "");
  EXPECT_EQ(Happened(), NothingCommitted());
}

// --- A new list ----------------------------------------------------------------------------------

TEST_F(SymbolAddEditorText, TheEditorOfANewListOpensWithTheSymbols) {
  With(
      kNewList,
      [](User& contents) {
        EXPECT_EQ(contents.Title(), Text("新增自選商品組合", "新增自选商品组合"));
        EXPECT_EQ(contents.Text(kName), "");
        EXPECT_EQ(contents.Rows(kRows), RowsOf({"2881.TW", "6488.TE"}));
        CancelIt(contents);
      },
      [](User&) {}, "2881.TW,6488.TE");
}

TEST_F(SymbolAddEditorText, BehindANewListTheDialogStaysUpAndShowsIt) {
  MakeNew(AcceptAs("four"), [](User& user) {
    EXPECT_TRUE(user.IsUp());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three", "four"}));
  });
}

TEST_F(SymbolAddEditorText, ANewListIsStoredBehindTheOthersWithAnIdentifierOfItsOwn) {
  EXPECT_EQ(MakeNew(AcceptAs("four")), kClosed);
  ASSERT_EQ(manager.GetSymbolListCount(1), 4);
  EXPECT_EQ(IdAt(3).size(), 36U);
  EXPECT_EQ(All(), untouched + "|" + IdAt(3) + "/four/2881.TW");
}

TEST_F(SymbolAddEditorText, ANewListIsSavedLoggedAndTold) {
  MakeNew(AcceptAs("four"));
  EXPECT_EQ(Happened(), Committed());
  EXPECT_EQ(ReadBack(), untouched + "|" + IdAt(3) + "/four/2881.TW");
}

TEST_F(SymbolAddEditorText, ANewListIsStoredWhenTheDialogIsCancelledToo) {
  EXPECT_EQ(MakeNew(AcceptAs("four"), [](User& user) { user.Press(WindowKey::Escape); }),
            kCancelled);
  EXPECT_EQ(manager.GetSymbolListCount(1), 4);
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddEditorText, NothingIsStoredBeforeTheDialogCloses) {
  MakeNew(AcceptAs("four"), [this](User&) {
    EXPECT_EQ(All(), untouched);
    EXPECT_EQ(Happened(), "not saved");
  });
}

TEST_F(SymbolAddEditorText, ANewListThatIsCancelledIsNotThere) {
  MakeNew(CancelIt, [](User& user) {
    EXPECT_TRUE(user.IsUp());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
  });
  EXPECT_EQ(All(), untouched);
  EXPECT_EQ(Happened(), NothingCommitted());
}

TEST_F(SymbolAddEditorText, TwoNewListsCannotHaveOneName) {
  MakeNew(AcceptAs("four"), [this](User& user) {
    WhenDialogOpens([this](User& contents) {
      EXPECT_TRUE(contents.Fill(kName, "four"));
      EXPECT_TRUE(contents.Click(kDone));
      EXPECT_EQ(Shown(), "48011/0");
      CancelIt(contents);
    });
    EXPECT_TRUE(user.Click(kNewList));
  });
  EXPECT_EQ(manager.GetSymbolListCount(1), 4);
}

TEST_F(SymbolAddEditorText, SymbolsCanBeAddedToAnotherListBehindANewOne) {
  MakeNew(AcceptAs("four"), [](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    AddThem(user);
  });
  EXPECT_EQ(Symbols("A"), "2330.TW,2881.TW");
  EXPECT_EQ(Symbols(IdAt(3).c_str()), "2881.TW");
  EXPECT_EQ(Happened(), Committed());
}

TEST_F(SymbolAddEditorText, TheOnlyListIsMadeAndIsTheDefault) {
  Start({});
  EXPECT_EQ(MakeNew(AcceptAs("first")), kClosed);
  EXPECT_EQ(All(), IdAt(0) + "/first/2881.TW");
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(SymbolAddEditorText, ANewListBesideOthersIsNotTheDefault) {
  manager.SetDefaultIndex(1);
  MakeNew(AcceptAs("four"));
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(SymbolAddEditorText, TheLetterOfTheButtonMakesANewList) {
  Run([](User& user) {
    WhenDialogOpens(AcceptAs("four"));
    EXPECT_TRUE(user.PressLetter('N'));
    user.Click(kClose);
  });
  EXPECT_EQ(manager.GetSymbolListCount(1), 4);
}

TEST_F(SymbolAddEditorText, TheLetterOfTheButtonEdits) {
  EXPECT_EQ(Run([](User& user) {
              WhenDialogOpens(Accept);
              EXPECT_TRUE(user.PressLetter('M'));
            }),
            kClosed);
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

} // namespace
