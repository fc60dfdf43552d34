// The editor of the user's lists: new lists, and the contents of those that are there.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextNew : public EditorTextTest {
protected:
  // Presses "new" and leaves what opens to a script.
  static void New(User& user, UserScript script) {
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kNew));
  }
  static void Edit(User& user, int row, UserScript script) {
    EXPECT_TRUE(user.Select(kLists, row));
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kEdit));
  }
};

// --- New -----------------------------------------------------------------------------------------

TEST_F(ListsEditorTextNew, OpensTheEditorOfContentsForANewList) {
  StartWithThree();
  EditLists([](User& user) {
    New(user, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("新增自選商品組合", "新增自选商品组合"));
      EXPECT_EQ(editor.Text(kListName), "");
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, TheNewListIsTheLastRow) {
  StartWithThree();
  EditLists([](User& user) {
    New(user, NameIt("four"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three", "four"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, TheNewListIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    New(user, NameIt("four"));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{3});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, TheContentsOfTheNewListAreShown) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    New(user, NameIt("four"));
    EXPECT_EQ(user.Rows(kContents), Lines{});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, TheNewListCanBeMovedUpAndNotDown) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    New(user, NameIt("four"));
    EXPECT_TRUE(user.IsEnabled(kUp));
    EXPECT_FALSE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, TheOnlyListBecomesTheDefault) {
  Start({});
  EditLists([](User& user) {
    New(user, NameIt("first"));
    EXPECT_EQ(MarkedRows(user), Numbers{0});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(ListsEditorTextNew, TheOnlyListCanBeEditedAndDeletedAtOnce) {
  Start({});
  EditLists([](User& user) {
    New(user, NameIt("first"));
    for (const int id : {kEdit, kDelete, kRename, kDefault})
      EXPECT_TRUE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, ANewListBesideOthersDoesNotBecomeTheDefault) {
  StartWithThree(1);
  EditLists([](User& user) {
    New(user, NameIt("four"));
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListsEditorTextNew, TheNewListIsStoredWithAnIdentifierOfItsOwn) {
  StartWithThree();
  EditLists([](User& user) {
    New(user, NameIt("four"));
    user.Click(kDone);
  });
  ASSERT_EQ(manager.GetSymbolListCount(1), 4);
  EXPECT_EQ(NameAt(3), "four");
  EXPECT_EQ(IdAt(3).size(), 36u);
}

TEST_F(ListsEditorTextNew, TwoNewListsHaveDifferentIdentifiers) {
  Start({});
  EditLists([](User& user) {
    New(user, NameIt("a"));
    New(user, NameIt("b"));
    user.Click(kDone);
  });
  ASSERT_EQ(manager.GetSymbolListCount(1), 2);
  EXPECT_NE(IdAt(0), IdAt(1));
}

TEST_F(ListsEditorTextNew, ACancelledNewListIsNone) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    New(user, CancelIt());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextNew, ANameThatAnotherListHasIsRefused) {
  StartWithThree();
  EditLists([this](User& user) {
    New(user, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "two"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      EXPECT_TRUE(editor.IsUp());
      EXPECT_TRUE(editor.HasFocus(kListName));
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, ANameThatDiffersInLetterCaseIsAnotherName) {
  StartWithThree();
  EditLists([](User& user) {
    New(user, NameIt("TWO"));
    EXPECT_EQ(user.Rows(kLists).back(), "TWO");
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

TEST_F(ListsEditorTextNew, ANameThatWasGivenAMomentAgoIsTaken) {
  StartWithThree();
  EditLists([this](User& user) {
    New(user, NameIt("four"));
    New(user, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "four"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, ANameThatWasGivenUpAMomentAgoIsFree) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    New(user, NameIt("two"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three", "two"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "48012/4");
}

// --- Edit ----------------------------------------------------------------------------------------

TEST_F(ListsEditorTextNew, EditOpensTheEditorOfContentsOnTheSelectedList) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 2, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("修改自選商品組合", "修改自选商品组合"));
      EXPECT_EQ(editor.Text(kListName), "three");
      const Lines rows = editor.Rows(kLists);
      ASSERT_EQ(rows.size(), 3u); // the last one is empty
      EXPECT_EQ(rows[0], Cement());
      EXPECT_EQ(rows[1], MediaTek());
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, ADoubleClickOnAListOpensItsContents) {
  StartWithThree();
  EditLists([](User& user) {
    WhenDialogOpens([](User& editor) {
      EXPECT_EQ(editor.Text(kListName), "two");
      editor.Click(kCancel);
    });
    EXPECT_TRUE(user.DoubleClick(kLists, 1));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, EditedContentsAreShown) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 2, RemoveItsFirstRow());
    EXPECT_EQ(user.Rows(kContents), Lines{MediaTek()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, EditedContentsAreStored) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 2, RemoveItsFirstRow());
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW|C/three/2454.TW");
}

TEST_F(ListsEditorTextNew, TheEditedListStaysSelected) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, ANameThatWasEditedIsShownInTheRow) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(1), "zwei");
}

TEST_F(ListsEditorTextNew, AnEditedSystemListKeepsItsMark) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei" + SystemMark()}));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|ZUSYSLIST1/zwei/2317.TW");
}

TEST_F(ListsEditorTextNew, TheEditedListKeepsItsIdentifier) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    user.Click(kDone);
  });
  EXPECT_EQ(IdAt(1), "B");
}

TEST_F(ListsEditorTextNew, ACancelledEditChangesNothing) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 2, [](User& editor) {
      EXPECT_TRUE(editor.ClickRow(kLists, 0));
      EXPECT_TRUE(editor.Click(kRemoveRow));
      EXPECT_TRUE(editor.Fill(kListName, "drei"));
      EXPECT_TRUE(editor.Click(kCancel));
    });
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.Rows(kContents), (Lines{Cement(), MediaTek()}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextNew, AListMayKeepItsNameWhenItIsEdited) {
  StartWithThree();
  EditLists([](User& user) {
    Edit(user, 1, NameIt("two"));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

TEST_F(ListsEditorTextNew, AListThatIsEditedMayNotTakeAnothersName) {
  StartWithThree();
  EditLists([this](User& user) {
    Edit(user, 1, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "three"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      editor.Click(kCancel);
    });
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, AnEditedListOfTheDefaultStaysTheDefault) {
  StartWithThree(1);
  EditLists([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListsEditorTextNew, UnknownSymbolsAndHeadingsSurviveAnEdit) {
  Start({"A/one/2330.TW,GONE.TW,semi:,2454.TW,2317.TW"});
  EditLists([](User& user) {
    Edit(user, 0, RemoveItsFirstRow());
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/GONE.TW,semi:,2454.TW,2317.TW");
}

TEST_F(ListsEditorTextNew, UnknownSymbolsAndHeadingsSurviveARename) {
  Start({"A/one/2330.TW,GONE.TW,semi:,2454.TW"});
  EditLists([](User& user) {
    Edit(user, 0, NameIt("eins"));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/eins/2330.TW,GONE.TW,semi:,2454.TW");
}

// --- An editor of contents that cannot be created ------------------------------------------------

TEST_F(ListsEditorTextNew, AnEditorThatCannotBeCreatedIsReported) {
  StartWithThree();
  EditLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    standin::FailCall("tqDoModal", 1);
    EXPECT_TRUE(user.Click(kEdit));
    EXPECT_EQ(Shown(), "48002/0");
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextNew, AnEditorThatCannotBeCreatedChangesNothing) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    standin::FailCall("tqDoModal", 1);
    EXPECT_TRUE(user.Click(kEdit));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextNew, WhenTheEditorCannotBeCreatedThereIsNoNewList) {
  StartWithThree();
  EditLists([](User& user) {
    standin::FailCall("tqDoModal", 1);
    EXPECT_TRUE(user.Click(kNew));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
