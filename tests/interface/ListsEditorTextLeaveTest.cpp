// The editor of the user's lists: the editor over a row is left by a click elsewhere.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextLeave : public EditorTextTest {
protected:
  // Types a name over that of the second of three lists and leaves it standing.
  static void TypeOverTwo(User& user, const std::string& name) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(name));
  }
  static void ExpectClosed(const User& user) { EXPECT_FALSE(user.IsVisible(kNameEditor)); }
};

TEST_F(ListsEditorTextLeave, AGoodNameIsTaken) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, "zwei");
    EXPECT_TRUE(user.ClickRow(kLists, 0));
    ExpectClosed(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(NameAt(1), "zwei");
}

TEST_F(ListsEditorTextLeave, TheClickOnAnotherListSelectsIt) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, "zwei");
    EXPECT_TRUE(user.ClickRow(kLists, 0));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
    EXPECT_EQ(user.Rows(kContents), Lines{Tsmc()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextLeave, TheClickOnDoneTakesTheNameAndEnds) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) {
              TypeOverTwo(user, "zwei");
              EXPECT_TRUE(user.Click(kDone));
            }),
            1);
  EXPECT_EQ(NameAt(1), "zwei");
}

TEST_F(ListsEditorTextLeave, TheClickOnDeleteTakesTheNameAndAsks) {
  StartWithThree();
  standin::AnswerMessages(kNo);
  EditLists([this](User& user) {
    TypeOverTwo(user, "zwei");
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_EQ(Shown(), "48012/4");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextLeave, TheClickOnUpMovesTheRenamedList) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, "zwei");
    EXPECT_TRUE(user.Click(kUp));
    EXPECT_EQ(user.Rows(kLists), (Lines{"zwei", "one", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextLeave, TheTabKeyTakesAGoodName) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, "zwei");
    EXPECT_TRUE(user.Press(WindowKey::Tab));
    ExpectClosed(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
}

// Names that Enter would have refused.
class ListsEditorTextLeaveBad : public ListsEditorTextLeave,
                                public testing::WithParamInterface<TypedName> {};

TEST_P(ListsEditorTextLeaveBad, GoesBackToTheOldName) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, Typed(GetParam()));
    EXPECT_TRUE(user.ClickRow(kLists, 0));
    ExpectClosed(user);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_P(ListsEditorTextLeaveBad, ShowsNoMessage) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, Typed(GetParam()));
    EXPECT_TRUE(user.ClickRow(kLists, 0));
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "");
}

TEST_P(ListsEditorTextLeaveBad, DoesNotStopTheClick) {
  StartWithThree();
  EditLists([](User& user) {
    TypeOverTwo(user, Typed(GetParam()));
    EXPECT_TRUE(user.ClickRow(kLists, 2));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    user.Click(kDone);
  });
}

INSTANTIATE_TEST_SUITE_P(Name, ListsEditorTextLeaveBad,
                         testing::Values(TypedName{"OfAnotherList", "three"},
                                         TypedName{"ThatNoFileCanHave", "a:b"},
                                         TypedName{"ThatIsTheSystems", "@"},
                                         TypedName{"ThatTheListFileCannotCarry", "a&b"},
                                         TypedName{"WithoutCharacters", "\b"}),
                         NameOfTyped());

} // namespace
