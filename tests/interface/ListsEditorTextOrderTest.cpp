// The editor of the user's lists: deleting, moving, and the default list.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextOrder : public EditorTextTest {
protected:
  // Deletes a row, asked and confirmed.
  static void Delete(User& user, int row) {
    standin::AnswerMessages(kYes);
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kDelete));
  }
  static void Move(User& user, int row, int button) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(button));
  }
};

// --- Delete --------------------------------------------------------------------------------------

TEST_F(ListsEditorTextOrder, DeleteAsksYesOrNo) {
  StartWithThree();
  standin::AnswerMessages(kNo);
  EditLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_EQ(Shown(), "48012/4");
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, YesRemovesTheListAndItsRow) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 1);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextOrder, NoRemovesNothing) {
  StartWithThree();
  standin::AnswerMessages(kNo);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextOrder, NoGivesTheFocusBackToTheLists) {
  StartWithThree();
  standin::AnswerMessages(kNo);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_TRUE(user.HasFocus(kLists));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, AQuestionThatCannotBeShownRemovesNothing) {
  StartWithThree();
  standin::FailAlways("tqShowDllMessage");
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDelete));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, AfterADeleteTheNextListIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 0);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
    EXPECT_EQ(user.Rows(kContents), Lines{HonHai()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, AfterTheLastRowIsDeletedThePreviousOneIsSelected) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 2);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    EXPECT_EQ(user.Rows(kContents), Lines{HonHai()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, AfterTheOnlyListIsDeletedBothBoxesAreEmpty) {
  Start({"A/one/2330.TW"});
  EditLists([](User& user) {
    Delete(user, 0);
    EXPECT_EQ(user.Rows(kLists), Lines{});
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{});
    EXPECT_EQ(user.Rows(kContents), Lines{});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, AfterTheOnlyListIsDeletedThereIsNoDefault) {
  Start({"A/one/2330.TW"});
  EditLists([](User& user) {
    Delete(user, 0);
    user.Click(kDone);
  });
  EXPECT_EQ(manager.GetSymbolListCount(1), 0);
  EXPECT_EQ(DefaultIndex(), -1);
}

TEST_F(ListsEditorTextOrder, TheDeleteKeyAsksAndDeletes) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  EditLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Press(WindowKey::Delete));
    EXPECT_EQ(Shown(), "48012/4");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, TheDeleteKeySparesSystemLists) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  standin::AnswerMessages(kYes);
  EditLists([this](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    user.Press(WindowKey::Delete);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(user.Rows(kLists).size(), 2u);
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, TheLetterOfTheDeleteButtonDeletes) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.PressLetter('D'));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    user.Click(kDone);
  });
}

// --- What becomes of the default list when lists are deleted -------------------------------------

struct DeletedList {
  const char* name;
  int defaultBefore;
  int deleted;
  const char* defaultAfter; // its identifier
};

class ListsEditorTextDelete : public ListsEditorTextOrder,
                              public testing::WithParamInterface<DeletedList> {};

TEST_P(ListsEditorTextDelete, LeavesTheRightDefaultList) {
  StartWithThree(GetParam().defaultBefore);
  Numbers marked;
  EditLists([&](User& user) {
    Delete(user, GetParam().deleted);
    marked = MarkedRows(user);
    user.Click(kDone);
  });
  ASSERT_EQ(marked.size(), 1u);
  EXPECT_EQ(IdAt(marked[0]), GetParam().defaultAfter);
  EXPECT_EQ(IdAt(DefaultIndex()), GetParam().defaultAfter);
}

INSTANTIATE_TEST_SUITE_P(Of, ListsEditorTextDelete,
                         testing::Values(DeletedList{"TheDefaultAtTheTop", 0, 0, "B"},
                                         DeletedList{"TheDefaultInTheMiddle", 1, 1, "C"},
                                         DeletedList{"TheDefaultAtTheEnd", 2, 2, "B"},
                                         DeletedList{"AListRightBeforeTheDefault", 1, 0, "B"},
                                         DeletedList{"AListFarBeforeTheDefault", 2, 0, "C"},
                                         DeletedList{"AListRightBehindTheDefault", 1, 2, "B"},
                                         DeletedList{"AListFarBehindTheDefault", 0, 2, "A"}),
                         [](const testing::TestParamInfo<DeletedList>& tested) {
                           return tested.param.name;
                         });

// --- Default -------------------------------------------------------------------------------------

TEST_F(ListsEditorTextOrder, TheDefaultButtonMovesTheMarkToTheSelectedList) {
  StartWithThree(0);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Click(kDefault));
    EXPECT_EQ(MarkedRows(user), Numbers{2});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 2);
}

TEST_F(ListsEditorTextOrder, TheDefaultButtonLeavesTheOrderAlone) {
  StartWithThree(0);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Click(kDefault));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, ASystemListCanBeTheDefault) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDefault));
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 1);
}

// --- Moving --------------------------------------------------------------------------------------

TEST_F(ListsEditorTextOrder, UpSwapsAListWithTheOneAbove) {
  StartWithThree();
  EditLists([](User& user) {
    Move(user, 2, kUp);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three", "two"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|C/three/1101.TW,2454.TW|B/two/2317.TW");
}

TEST_F(ListsEditorTextOrder, DownSwapsAListWithTheOneBelow) {
  StartWithThree();
  EditLists([](User& user) {
    Move(user, 0, kDown);
    EXPECT_EQ(user.Rows(kLists), (Lines{"two", "one", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "B/two/2317.TW|A/one/2330.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextOrder, TheMovedListStaysSelected) {
  StartWithThree();
  EditLists([](User& user) {
    Move(user, 2, kUp);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    EXPECT_TRUE(user.Click(kDown));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, TheContentsStayThoseOfTheMovedList) {
  StartWithThree();
  EditLists([](User& user) {
    Move(user, 2, kUp);
    EXPECT_EQ(user.Rows(kContents), (Lines{Cement(), MediaTek()}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, RowsAreTheirListsAfterAMove) {
  StartWithThree();
  EditLists([](User& user) {
    Move(user, 0, kDown);
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), Lines{HonHai()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, TheMarkOfASystemListMovesWithIt) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    Move(user, 1, kUp);
    EXPECT_EQ(user.Rows(kLists), (Lines{"two" + SystemMark(), "one"}));
    EXPECT_FALSE(user.IsEnabled(kDelete));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, ADefaultListThatMovesUpStaysTheDefault) {
  StartWithThree(2);
  EditLists([](User& user) {
    Move(user, 2, kUp);
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(IdAt(DefaultIndex()), "C");
}

TEST_F(ListsEditorTextOrder, ADefaultListThatMovesDownStaysTheDefault) {
  StartWithThree(0);
  EditLists([](User& user) {
    Move(user, 0, kDown);
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
  EXPECT_EQ(IdAt(DefaultIndex()), "A");
}

TEST_F(ListsEditorTextOrder, AListThatMovesPastTheDefaultDoesNotTakeTheMark) {
  StartWithThree(1);
  EditLists([](User& user) {
    Move(user, 2, kUp);
    EXPECT_EQ(MarkedRows(user), Numbers{2});
    user.Click(kDone);
  });
  EXPECT_EQ(IdAt(DefaultIndex()), "B");
}

TEST_F(ListsEditorTextOrder, AMoveAwayFromTheDefaultLeavesItAlone) {
  StartWithThree(0);
  EditLists([](User& user) {
    Move(user, 1, kDown);
    EXPECT_EQ(MarkedRows(user), Numbers{0});
    user.Click(kDone);
  });
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(ListsEditorTextOrder, AltAndTheArrowsMoveTheSelectedList) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Press(WindowKey::Up, Modifier::Alt));
    EXPECT_EQ(user.Rows(kLists), (Lines{"two", "one", "three"}));
    EXPECT_TRUE(user.Press(WindowKey::Down, Modifier::Alt));
    EXPECT_TRUE(user.Press(WindowKey::Down, Modifier::Alt));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three", "two"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextOrder, TheKeysDoNotMoveTheFirstListUp) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    user.Press(WindowKey::Up, Modifier::Alt);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextOrder, TheKeysDoNotMoveTheLastListDown) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    user.Press(WindowKey::Down, Modifier::Alt);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
