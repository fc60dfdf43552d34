// The content editors: what the user did to the list is taken back and done again.
#include "platform/framework/window/CListBox.h"
#include "tests/interface/ContentEditorText.h"
#include "tests/interface/UndoSteps.h"

namespace {

class ContentUndo : public ContentEditorsText {
protected:
  ContentUndo() { Start({"A/one/2330.TW,gone.TW,2317.TW,1101.TW"}); }

  // What the user sees of the list: rows, what is selected of them, and the caret row.
  struct View {
    Lines rows;
    std::vector<int> selected;
    int caret;
    bool operator==(const View&) const = default;
  };
  static View ViewOf(const User& user) {
    return {user.Rows(kRows), user.SelectedRows(kRows),
            CListBox(user.Dialog(), kRows).GetCaretIndex()};
  }
  // The action behind `prepare` changes rows, and is one step.
  void ExpectStep(const Action& prepare, const Action& action) {
    In([&](User& user) {
      prepare(user);
      const Lines before = user.Rows(kRows);
      ExpectOneStep(user, &ViewOf, action);
      EXPECT_NE(user.Rows(kRows), before);
    });
    EXPECT_EQ(Shown(), "");
  }
  static Action Row(int row) {
    return [row](User& user) { EXPECT_TRUE(user.ClickRow(kRows, row)); };
  }
  static void Nothing(User&) {}
};

class UserContentUndo : public ContentUndo {};

INSTANTIATE_TEST_SUITE_P(Editors, ContentUndo,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);
INSTANTIATE_TEST_SUITE_P(Editors, UserContentUndo, testing::Values(EditorOf::UserList),
                         NameOfEditor);

TEST_P(ContentUndo, ASymbolThatWasTyped) {
  ExpectStep(Row(1), [](User& user) { Submit(user, "2454"); });
}

TEST_P(ContentUndo, SymbolsThatWerePicked) {
  ExpectStep(
      [](User& user) {
        ShowGroup(user, 1, 0);
        EXPECT_TRUE(user.ClickRow(kFound, 0));
        EXPECT_TRUE(user.ClickRow(kFound, 1, Modifier::Shift));
      },
      [](User& user) { EXPECT_TRUE(user.Click(kAdd)); });
}

TEST_P(ContentUndo, ASymbolThatWasDoubleClicked) {
  ExpectStep([](User& user) { ShowGroup(user, 1, 0); },
             [](User& user) { EXPECT_TRUE(user.DoubleClick(kFound, 1)); });
}

TEST_P(ContentUndo, AWholeGroup) {
  ExpectStep([](User& user) { ShowGroup(user, 0, 0); },
             [](User& user) { EXPECT_TRUE(user.Click(kAddAll)); });
}

TEST_P(ContentUndo, TheOnlySymbolOfASearch) {
  ExpectStep(Nothing, [](User& user) { Search(user, "6488"); });
}

TEST_P(ContentUndo, RowsThatWereRemoved) {
  ExpectStep(Row(1), [](User& user) { EXPECT_TRUE(user.Click(kRemove)); });
  ExpectStep(
      [](User& user) {
        EXPECT_TRUE(user.ClickRow(kRows, 0));
        EXPECT_TRUE(user.ClickRow(kRows, 2, Modifier::Control));
      },
      [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Delete)); });
}

TEST_P(ContentUndo, RowsThatWereMoved) {
  ExpectStep(
      [](User& user) {
        EXPECT_TRUE(user.ClickRow(kRows, 1));
        EXPECT_TRUE(user.ClickRow(kRows, 2, Modifier::Shift));
      },
      [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Up, Modifier::Alt)); });
  ExpectStep(Row(0), [](User& user) { EXPECT_TRUE(user.Click(kDown)); });
}

TEST_P(ContentUndo, TheOrder) {
  ExpectStep(Row(2), [](User& user) { EXPECT_TRUE(user.Click(kSort)); });
}

TEST_P(UserContentUndo, ASubTitle) {
  ExpectStep(Row(1), [](User& user) {
    EXPECT_TRUE(user.Fill(kSubTitle, "Chips"));
    EXPECT_TRUE(user.Click(kAddSubTitle));
  });
}

TEST_P(UserContentUndo, TheTextOfASubTitle) {
  Start({"A/one/2330.TW,Chips:,2317.TW"});
  ExpectStep(Row(1), [](User& user) {
    EXPECT_TRUE(user.Fill(kSubTitle, "Other"));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  });
}

// More rows than are changed one by one.
TEST_P(UserContentUndo, ALongListInOneStep) {
  std::string symbols = "2330.TW";
  for (int i = 0; i < 120; ++i)
    symbols += ",T" + std::to_string(i) + ":";
  Start({"A/one/" + symbols});
  ExpectStep(
      [](User& user) {
        EXPECT_TRUE(user.ClickRow(kRows, 2));
        EXPECT_TRUE(user.ClickRow(kRows, 100, Modifier::Shift));
      },
      [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Up, Modifier::Alt)); });
  ExpectStep(
      [](User& user) {
        EXPECT_TRUE(user.ClickRow(kRows, 5));
        EXPECT_TRUE(user.PressLetter('A', Modifier::Control));
      },
      [](User& user) { EXPECT_TRUE(user.Click(kRemove)); });
}

TEST_P(ContentUndo, AllStepsInTheirOrder) {
  In([](User& user) {
    const Lines opened = user.Rows(kRows);
    Submit(user, "2454");
    EXPECT_TRUE(user.ClickRow(kRows, 0));
    EXPECT_TRUE(user.Click(kDown));
    const Lines moved = user.Rows(kRows);
    EXPECT_TRUE(user.Click(kRemove));
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), moved);
    Undo(user);
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), opened);
  });
}

TEST_P(ContentUndo, WhatIsDoneAnewTakesThePlaceOfWhatWasTakenBack) {
  EXPECT_EQ(After([](User& user) {
              EXPECT_TRUE(user.ClickRow(kRows, 0));
              EXPECT_TRUE(user.Click(kRemove));
              Undo(user);
              EXPECT_TRUE(user.ClickRow(kRows, 2));
              EXPECT_TRUE(user.Click(kRemove));
              Redo(user);
            }),
            "2330.TW,gone.TW,2317.TW");
}

TEST_P(ContentUndo, TheButtonsFollow) {
  In([](User& user) {
    EXPECT_TRUE(user.ClickRow(kRows, 0));
    EXPECT_TRUE(user.Click(kDown));
    EXPECT_TRUE(user.IsEnabled(kUp));
    Undo(user);
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
  });
}

TEST_P(ContentUndo, TheKeysWorkWhereverTheFocusIsButInATextThatIsTyped) {
  In([](User& user) {
    const Lines opened = user.Rows(kRows);
    for (const int button : {kSort, kRemove}) {
      EXPECT_TRUE(user.ClickRow(kRows, 0));
      EXPECT_TRUE(user.Click(button));
      EXPECT_NE(user.Rows(kRows), opened);
      Undo(user);
      EXPECT_EQ(user.Rows(kRows), opened);
    }
    EXPECT_TRUE(user.Fill(kCode, "2454"));
    EXPECT_TRUE(user.Press(WindowKey::Enter)); // empties the field, which keeps the focus
    EXPECT_TRUE(user.HasFocus(kCode));
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), opened);
    Redo(user);
    EXPECT_TRUE(user.Fill(kCode, "x"));
    const Lines added = user.Rows(kRows);
    EXPECT_NE(added, opened);
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), added);
    EXPECT_TRUE(user.Click(kName));
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), added);
    EXPECT_TRUE(user.Fill(kName, ""));
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), added);
  });
}

TEST_P(ContentUndo, WithNothingToTakeBackNothingHappens) {
  In([](User& user) {
    const View opened = ViewOf(user);
    Undo(user);
    Redo(user);
    EXPECT_EQ(ViewOf(user), opened);
  });
}

// Unknown ids and what else no row shows come back as they were written.
TEST_P(ContentUndo, AfterAllIsTakenBackDoneStoresNothing) {
  manager.ClearCloudSymbolList();
  Start({"A/one/ 2330.tw ,gone.TW,1101.TW"});
  const std::string before = All();
  Mark();
  EXPECT_TRUE(Edit("A", [](User& user) {
    EXPECT_TRUE(user.Click(kSort));
    Submit(user, "2454");
    EXPECT_TRUE(user.ClickRow(kRows, 0));
    EXPECT_TRUE(user.Click(kRemove));
    for (int i = 0; i < 3; ++i)
      Undo(user);
    user.Click(kDone);
  }));
  EXPECT_EQ(All(), before);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentUndo, WhatWasDoneAgainIsStored) {
  EXPECT_EQ(After([](User& user) {
              EXPECT_TRUE(user.ClickRow(kRows, 0));
              EXPECT_TRUE(user.Click(kRemove));
              Undo(user);
              Redo(user);
            }),
            "gone.TW,2317.TW,1101.TW");
}

TEST_P(ContentUndo, CancelLeavesNothing) {
  const std::string before = All();
  In([](User& user) {
    EXPECT_TRUE(user.Click(kSort));
    Undo(user);
    Redo(user);
  });
  EXPECT_EQ(All(), before);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ContentUndo, TheNextEditorStartsAnew) {
  EXPECT_EQ(After([](User& user) {
              EXPECT_TRUE(user.ClickRow(kRows, 0));
              EXPECT_TRUE(user.Click(kRemove));
            }),
            "gone.TW,2317.TW,1101.TW");
  In([](User& user) {
    const Lines opened = user.Rows(kRows);
    Undo(user);
    EXPECT_EQ(user.Rows(kRows), opened);
  });
}

TEST_P(UserContentUndo, SymbolsThatItWasOpenedWithStay) {
  Start({"A/one/2330.TW"});
  WhenDialogOpens([](User& user) {
    EXPECT_TRUE(user.ClickRow(781, 0));
    WhenDialogOpens([](User& opened) {
      Submit(opened, "2454");
      Undo(opened);
      Undo(opened);
      EXPECT_EQ(opened.Rows(kRows), RowsOf({"2330.TW", "1101.TW"}));
      opened.Click(kDone);
    });
    EXPECT_TRUE(user.Click(802));
    user.Click(1);
  });
  CTQSymbolListMgr::DoGroupSymbolAdd(&manager, manager.GetSymbolTableMgr(), nullptr, "1101.TW");
  EXPECT_EQ(Symbols("A"), "2330.TW,1101.TW");
}

} // namespace
