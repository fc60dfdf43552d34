// The editor of the user's lists: the names that a list may get in its row.
#include "tests/interface/ListsEditorRenameText.h"

namespace {

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
    EXPECT_TRUE(user.Press(WindowKey::Enter));
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
