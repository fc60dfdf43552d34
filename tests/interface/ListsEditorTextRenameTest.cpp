// The editor of the user's lists: a list is renamed in its row.
#include "tests/interface/ListsEditorRenameText.h"

namespace {

// --- The editor over the row ---------------------------------------------------------------------

TEST_F(ListsEditorTextRename, OpensAnEditorWithTheListsName) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.IsVisible(kNameEditor));
    EXPECT_EQ(user.Text(kNameEditor), "two");
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, TheEditorLiesOverTheSelectedRow) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_FALSE(user.ClickRow(kLists, 1)); // the mouse reaches the editor there
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, AllOfTheNameIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Type("z"));
    EXPECT_EQ(user.Text(kNameEditor), "z");
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, ASystemListsNameIsEditedWithoutTheMark) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_EQ(user.Text(kNameEditor), "two");
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, TakesSixtyFourCharactersAndNoMore) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Type(std::string(70, 'x')));
    EXPECT_EQ(user.Text(kNameEditor), std::string(64, 'x'));
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, ANameOfSixtyFourCharactersIsStoredWhole) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, std::string(64, 'x'));
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(1), std::string(64, 'x'));
}

TEST_F(ListsEditorTextRename, F2OpensTheEditor) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Press(WindowKey::F2));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    EXPECT_EQ(user.Text(kNameEditor), "three");
    GiveUp(user);
  });
}

TEST_F(ListsEditorTextRename, TheLetterOfItsButtonOpensTheEditor) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.PressLetter('R'));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
    GiveUp(user);
  });
}

// --- Commit and cancel ---------------------------------------------------------------------------

TEST_F(ListsEditorTextRename, EnterShowsTheNewNameInTheRow) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextRename, EnterClosesTheEditorAndNotTheDialog) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    EXPECT_TRUE(user.IsUp());
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextRename, TheRenamedRowIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextRename, TheNewNameIsStored) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|B/zwei/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextRename, ANameOfDoubleByteCharactersIsStoredWhole) {
  const std::string name = Text("許功蓋", "许功盖");
  StartWithThree();
  EditLists([&](User& user) {
    RenameTo(user, 1, name);
    EXPECT_EQ(user.Rows(kLists)[1], name);
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(1), standin::ToAnsi(name));
  EXPECT_NE(ReadWorking().find("Name='" + standin::ToAnsi(name) + "'"), std::string::npos);
}

TEST_F(ListsEditorTextRename, ARenamedSystemListKeepsItsMark) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei" + SystemMark()}));
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(1), "zwei");
}

TEST_F(ListsEditorTextRename, EscapeChangesNothing) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Type("zwei"));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextRename, EscapeClosesTheEditorAndNotTheDialog) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_TRUE(user.IsUp());
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextRename, EscapeShowsNoMessageWhateverWasTyped) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Type("one"));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

} // namespace
