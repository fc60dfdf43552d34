// The editors of lists: what the user did is taken back and done again, with the default list and
// what is selected.
#include "tests/interface/EditorText.h"
#include "tests/interface/UndoSteps.h"

namespace {

class ListsUndo : public EditorTextTest {
protected:
  struct View {
    Lines lists;
    Lines contents;
    Numbers selected;
    Numbers marked;
    bool operator==(const View&) const = default;
  };
  static View ViewOf(const User& user) {
    return {user.Rows(kLists), user.Rows(kContents), user.SelectedRows(kLists), MarkedRows(user)};
  }

  using Action = std::function<void(User&)>;
  // The action is one step, and taken back at the end.
  static void CheckStep(User& user, const Action& action) {
    ExpectOneStep(user, &ViewOf, action);
    Undo(user);
  }
  // In the editor of each kind, with three lists of which the row is selected. It ends as it began.
  void ExpectStep(int row, const Action& action) {
    StartWithThree(1);
    const std::string before = Shape();
    EditLists([&](User& user) {
      EXPECT_TRUE(user.Select(kLists, row));
      CheckStep(user, action);
      user.Click(kDone);
    });
    EXPECT_EQ(Shape(), before);
    EXPECT_EQ(DefaultIndex(), 1);
    EXPECT_EQ(Happened(), "not saved");
    ExpectCloudStep(row, action);
  }
  void ExpectCloudStep(int row, const Action& action) {
    StartCloud({"K1/one/2330.TW", "K2/two/2317.TW", "K3/three/1101.TW,2454.TW"});
    const std::string before = CloudShape();
    const std::string map = CloudMap();
    EditCloudLists([&](User& user) {
      EXPECT_TRUE(user.Select(kLists, row));
      CheckStep(user, action);
      user.Click(kDone);
    });
    EXPECT_EQ(CloudShape(), before);
    EXPECT_EQ(CloudMap(), map);
    EXPECT_EQ(Happened(), "not saved");
    manager.ClearCloudSymbolList();
  }
  static void Delete(User& user) {
    standin::AnswerMessages(kYes);
    EXPECT_TRUE(user.Click(kDelete));
  }
  static void RenameTo(User& user, const char* name) {
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
};

TEST_F(ListsUndo, ANewList) {
  ExpectStep(1, [](User& user) {
    WhenDialogOpens(NameIt("four"));
    EXPECT_TRUE(user.Click(kNew));
  });
}

TEST_F(ListsUndo, AListThatWasDeleted) {
  for (const int row : {0, 1, 2})
    ExpectStep(row, Delete);
}

TEST_F(ListsUndo, AName) {
  ExpectStep(2, [](User& user) { RenameTo(user, "drei"); });
}

TEST_F(ListsUndo, AListThatWasMoved) {
  ExpectStep(1, [](User& user) { EXPECT_TRUE(user.Click(kUp)); });
  ExpectStep(0, [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Down, Modifier::Alt)); });
}

TEST_F(ListsUndo, TheDefaultList) {
  StartWithThree(1);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    CheckStep(user, [](User& editor) { EXPECT_TRUE(editor.Click(kDefault)); });
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(Happened(), "not saved");
}

// However much was done in it.
TEST_F(ListsUndo, AContentEditorThatEndedWithOkIsOneStep) {
  ExpectStep(2, [](User& user) {
    WhenDialogOpens([](User& editor) {
      EXPECT_TRUE(editor.ClickRow(kLists, 0));
      EXPECT_TRUE(editor.Click(kRemoveRow));
      EXPECT_TRUE(editor.Fill(741, "6488"));
      EXPECT_TRUE(editor.Press(WindowKey::Enter));
      EXPECT_TRUE(editor.Fill(kListName, "drei"));
      EXPECT_TRUE(editor.Click(kOk));
    });
    EXPECT_TRUE(user.Click(kEdit));
  });
}

TEST_F(ListsUndo, AContentEditorTakesBackWhatHappenedInItAlone) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, "eins");
    WhenDialogOpens([](User& editor) {
      Undo(editor);
      EXPECT_EQ(editor.Text(kListName), "eins");
      EXPECT_TRUE(editor.Fill(741, "6488"));
      EXPECT_TRUE(editor.Press(WindowKey::Enter));
      Undo(editor);
      EXPECT_TRUE(editor.Click(kOk));
    });
    EXPECT_TRUE(user.Click(kEdit)); // no change, and no step
    Undo(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsUndo, ACancelledContentEditorIsNoStep) {
  StartWithThree();
  EditLists([](User& user) {
    WhenDialogOpens([](User& editor) {
      EXPECT_TRUE(editor.ClickRow(kLists, 0));
      EXPECT_TRUE(editor.Click(kRemoveRow));
      EXPECT_TRUE(editor.Click(kCancel));
    });
    EXPECT_TRUE(user.Click(kEdit));
    const View before = ViewOf(user);
    Undo(user);
    EXPECT_EQ(ViewOf(user), before);
    user.Click(kDone);
  });
}

TEST_F(ListsUndo, AllStepsInTheirOrder) {
  StartWithThree(2);
  EditLists([](User& user) {
    const View opened = ViewOf(user);
    RenameTo(user, "drei");
    EXPECT_TRUE(user.Click(kUp));
    Delete(user);
    EXPECT_TRUE(user.Click(kDefault));
    const View done = ViewOf(user);
    for (int i = 0; i < 4; ++i)
      Undo(user);
    EXPECT_EQ(ViewOf(user), opened);
    for (int i = 0; i < 4; ++i)
      Redo(user);
    EXPECT_EQ(ViewOf(user), done);
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/two/2317.TW");
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(ListsUndo, WhatIsDoneAnewTakesThePlaceOfWhatWasTakenBack) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, "eins");
    Undo(user);
    EXPECT_TRUE(user.Click(kDown));
    Redo(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"two", "one", "three"}));
    Undo(user);
    Undo(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsUndo, TheOnlyListComesBack) {
  Start({"A/one/2330.TW"});
  EditLists([](User& user) {
    Delete(user);
    EXPECT_EQ(user.Rows(kContents), Lines());
    Undo(user);
    EXPECT_EQ(user.Rows(kContents), Lines{Tsmc()});
    EXPECT_EQ(MarkedRows(user), Numbers{0});
    EXPECT_TRUE(user.IsEnabled(kDefault));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsUndo, TheButtonsFollow) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Click(kDown));
    EXPECT_TRUE(user.IsEnabled(kUp));
    Undo(user);
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsUndo, InTheEditorOfNamesTheKeysAreTheFields) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, "eins");
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type("x"));
    Undo(user);
    Redo(user);
    EXPECT_TRUE(user.IsVisible(kNameEditor));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_EQ(user.Rows(kLists), (Lines{"eins", "two", "three"}));
    Undo(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsUndo, WithNothingToTakeBackNothingHappens) {
  StartWithThree();
  EditLists([](User& user) {
    const View opened = ViewOf(user);
    Undo(user);
    Redo(user);
    EXPECT_EQ(ViewOf(user), opened);
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

// What the terminal does to the lists while the editor is open is kept, whatever is taken back.
TEST_F(ListsUndo, WhatTheTerminalDidMeanwhileStays) {
  StartWithThree();
  EditLists([this](User& user) {
    RenameTo(user, "eins");
    manager.AddSymbolList("N", 0, "new", "6488.TE", 0, 0);
    Mark();
    Undo(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
  EXPECT_EQ(Shape(), "N/new/6488.TE|A/one/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsUndo, WhatWasDoneAgainIsStored) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, "eins");
    Undo(user);
    Redo(user);
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/eins/2330.TW|B/two/2317.TW|C/three/1101.TW,2454.TW");
  EXPECT_EQ(Happened(), "saved; told 40:ListNameChange" + Logged("DoSymbolListUI", NameDiffers()));
}

} // namespace
