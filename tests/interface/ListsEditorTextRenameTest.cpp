// The editor of the user's lists: a list is renamed in its row.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextRename : public EditorTextTest {
protected:
  // Opens the editor over a row.
  static void Rename(User& user, int row) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
  }
  // Types a name over the row's own and presses Enter.
  static void RenameTo(User& user, int row, const std::string& name) {
    Rename(user, row);
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(Key::Enter));
  }
  // The editor has stayed open for another try.
  static void ExpectStillEditing(User& user) {
    EXPECT_TRUE(user.IsUp());
    EXPECT_TRUE(user.IsVisible(kNameEditor));
    EXPECT_TRUE(user.HasFocus(kNameEditor));
  }
  static void GiveUp(User& user) {
    EXPECT_TRUE(user.Press(Key::Escape));
    EXPECT_TRUE(user.Click(kDone));
  }
  static std::string Reserved() {
    return Text("(系統) 此字串為系統所用，請勿使用", "(系统) 此字串为系统所用，请勿使用");
  }
  static std::vector<standin::Call> NameTests() {
    std::vector<standin::Call> calls;
    for (const standin::Call& call : standin::Calls())
      if (call.operation == "CCheckFileName::IsValidName")
        calls.push_back(call);
    return calls;
  }
};

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
    EXPECT_TRUE(user.Press(Key::F2));
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
    EXPECT_TRUE(user.Press(Key::Escape));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextRename, EscapeClosesTheEditorAndNotTheDialog) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1);
    EXPECT_TRUE(user.Press(Key::Escape));
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
    EXPECT_TRUE(user.Press(Key::Escape));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

// --- Step 1: the name of another list ------------------------------------------------------------

TEST_F(ListsEditorTextRename, AnotherListsNameIsRefused) {
  StartWithThree();
  EditLists([this](User& user) {
    RenameTo(user, 1, "three");
    EXPECT_EQ(Shown(), "48011/0");
    ExpectStillEditing(user);
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

TEST_F(ListsEditorTextRename, AfterADuplicateAllOfTheNameIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "three");
    EXPECT_TRUE(user.Type("zwei"));
    EXPECT_EQ(user.Text(kNameEditor), "zwei");
    EXPECT_TRUE(user.Press(Key::Enter));
    EXPECT_EQ(user.Rows(kLists)[1], "zwei");
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextRename, ItsOwnNameIsAllowed) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "two");
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextRename, ANameThatDiffersInLetterCaseIsAnotherName) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "ONE");
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(NameAt(1), "ONE");
}

TEST_F(ListsEditorTextRename, ADuplicateIsFoundAmongTheNamesAsTheyStandInTheDialog) {
  StartWithThree();
  EditLists([this](User& user) {
    RenameTo(user, 0, "eins");
    RenameTo(user, 1, "one"); // free by now
    EXPECT_EQ(Shown(), "");
    RenameTo(user, 2, "eins");
    EXPECT_EQ(Shown(), "48011/0");
    GiveUp(user);
  });
  EXPECT_EQ(Shape(), "A/eins/2330.TW|B/one/2317.TW|C/three/1101.TW,2454.TW");
}

// --- Step 2: the name as that of a file ----------------------------------------------------------

TEST_F(ListsEditorTextRename, TheTerminalIsAskedWhetherTheNameIsGood) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "zwei");
    user.Click(kDone);
  });
  ASSERT_EQ(NameTests().size(), 1u);
  EXPECT_EQ(NameTests()[0].arguments, "zwei,1");
}

TEST_F(ListsEditorTextRename, ANameThatIsRefusedLeadsBackToTheEditor) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "a:b");
    ExpectStillEditing(user);
    EXPECT_EQ(user.Text(kNameEditor), "a:b");
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

TEST_F(ListsEditorTextRename, ANameThatIsRefusedHasTheTerminalsMessageAlone) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "a:b");
    GiveUp(user);
  });
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 0u);
  EXPECT_EQ(standin::CountCalls("tqShowDllMessage"), 0);
  EXPECT_EQ(standin::CountCalls("tqShowMessageStr"), 0);
}

TEST_F(ListsEditorTextRename, AnEmptyNameIsRefused) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "\b");
    ExpectStillEditing(user);
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

TEST_F(ListsEditorTextRename, ADuplicateIsNotedBeforeTheTerminalIsAsked) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "three");
    EXPECT_EQ(NameTests().size(), 0u);
    GiveUp(user);
  });
}

// --- Step 3: the text that is the system's -------------------------------------------------------

class ListsEditorTextReserved : public ListsEditorTextRename,
                                public testing::WithParamInterface<TypedName> {};

TEST_P(ListsEditorTextReserved, IsRefusedAnywhereInAName) {
  StartWithThree();
  EditLists([this](User& user) {
    RenameTo(user, 1, Typed(GetParam()));
    EXPECT_EQ(Shown(), Reserved() + "/0");
    ExpectStillEditing(user);
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

INSTANTIATE_TEST_SUITE_P(Text, ListsEditorTextReserved,
                         testing::Values(TypedName{"Alone", "@"}, TypedName{"AtTheEnd", "two@"},
                                         TypedName{"AtTheStart", "@two"},
                                         TypedName{"InTheMiddle", "one@two"}),
                         NameOfTyped());

TEST_F(ListsEditorTextRename, TheReservedTextIsShownAsAText) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "two" + SystemMark());
    GiveUp(user);
  });
  EXPECT_EQ(standin::CountCalls("tqShowMessageStr"), 1);
}

TEST_F(ListsEditorTextRename, ASystemListMayNotBearItsMarkInItsNameEither) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([this](User& user) {
    RenameTo(user, 1, "two" + SystemMark());
    EXPECT_EQ(Shown(), Reserved() + "/0");
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

TEST_F(ListsEditorTextRename, TheTerminalIsAskedBeforeTheReservedTextIsLookedFor) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, "a:b" + SystemMark());
    EXPECT_EQ(standin::Messages().size(), 1u);
    EXPECT_EQ(standin::CountCalls("tqShowMessageStr"), 0);
    GiveUp(user);
  });
}

// --- Behind these: what the list file cannot carry -----------------------------------------------

class ListsEditorTextUnstorable : public ListsEditorTextRename,
                                  public testing::WithParamInterface<TypedName> {};

TEST_P(ListsEditorTextUnstorable, IsRefused) {
  StartWithThree();
  EditLists([](User& user) {
    RenameTo(user, 1, Typed(GetParam()));
    ASSERT_EQ(standin::Messages().size(), 1u);
    EXPECT_EQ(standin::Messages()[0].id, 48203u);
    EXPECT_EQ(standin::Messages()[0].type, 0u);
    ExpectStillEditing(user);
    GiveUp(user);
  });
  EXPECT_EQ(NameAt(1), "two");
}

INSTANTIATE_TEST_SUITE_P(Name, ListsEditorTextUnstorable,
                         testing::Values(TypedName{"WithAnApostrophe", "a'b"},
                                         TypedName{"WithAnAmpersand", "a&b"}),
                         NameOfTyped());

TEST_F(ListsEditorTextRename, TheReservedTextIsLookedForBeforeWhatTheFileCannotCarry) {
  StartWithThree();
  EditLists([this](User& user) {
    RenameTo(user, 1, "a&b" + SystemMark());
    EXPECT_EQ(Shown(), Reserved() + "/0");
    GiveUp(user);
  });
}

} // namespace
