// The selection: the user's lists are made, edited and deleted from there.
#include "tests/interface/SelectionEditText.h"

namespace {

// --- New -----------------------------------------------------------------------------------------

TEST_F(SelectionTextEdit, NewOpensTheEditorOfContentsForANewList) {
  StartWithThree();
  Choose([](User& user) {
    New(user, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("新增自選商品組合", "新增自选商品组合"));
      editor.Click(kCancel);
    });
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, ANewListIsTheLastRowAndSelected) {
  StartWithThree();
  Choose([](User& user) {
    New(user, NameIt("four"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three", "four"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{3});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, ANewListIsTheAnswerWhenItIsChosen) {
  StartWithThree();
  Choose([](User& user) {
    New(user, NameIt("four"));
    user.Click(kOk);
  });
  EXPECT_EQ(Answer(), "1/" + IdAt(3));
}

TEST_F(SelectionTextEdit, TheFirstListBecomesTheDefault) {
  StartWith({});
  manager.SetDefaultIndex(-1);
  Choose([](User& user) {
    New(user, NameIt("first"));
    user.Click(kOk);
  });
  EXPECT_EQ(DefaultIndex(), 0);
}

TEST_F(SelectionTextEdit, ANewListBesideOthersDoesNotBecomeTheDefault) {
  StartWithThree(1);
  Choose([](User& user) {
    New(user, NameIt("four"));
    user.Click(kOk);
  });
  EXPECT_EQ(DefaultIndex(), 1);
}

TEST_F(SelectionTextEdit, ACancelledNewListIsNone) {
  StartWithThree();
  Choose([](User& user) {
    New(user, CancelIt());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEdit, ANewListMayNotTakeAnothersName) {
  StartWithThree();
  Choose([this](User& user) {
    New(user, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "two"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      editor.Click(kCancel);
    });
    user.Click(kCancel);
  });
}

// --- Edit ----------------------------------------------------------------------------------------

TEST_F(SelectionTextEdit, EditOpensTheEditorOfContentsOnTheSelectedList) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("修改自選商品組合", "修改自选商品组合"));
      EXPECT_EQ(editor.Text(kListName), "two");
      EXPECT_EQ(editor.Rows(kLists).front(), HonHai());
      editor.Click(kCancel);
    });
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, AnEditedListStaysSelectedUnderItsNewName) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, ACancelledEditChangesNothing) {
  StartWithThree();
  Choose([](User& user) {
    Edit(user, 1, CancelIt());
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEdit, AnEditorThatCannotBeCreatedChangesNothing) {
  StartWithThree();
  Choose([](User& user) {
    ShowMyLists(user);
    EXPECT_TRUE(user.Select(kLists, 1));
    standin::FailCall("tqDoModal", 1);
    user.Click(kEdit);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEdit, WithoutASelectedListThereIsNothingToEditOrDelete) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  Choose([this](User& user) {
    ShowMyLists(user);
    ASSERT_EQ(user.SelectedRows(kLists), Numbers{});
    user.Click(kEdit);
    user.Click(kDelete);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, UnknownSymbolsAndHeadingsSurvive) {
  Start({"A/one/2330.TW,GONE.TW,semi:,2454.TW", "B/two/2317.TW"});
  Choose([](User& user) {
    Edit(user, 0, RemoveItsFirstRow());
    user.Click(kOk);
  });
  EXPECT_EQ(Shape(), "A/one/GONE.TW,semi:,2454.TW|B/two/2317.TW");
}

// --- Delete --------------------------------------------------------------------------------------

TEST_F(SelectionTextEdit, DeleteAsksYesNoOrCancel) {
  StartWithThree();
  Choose([this](User& user) {
    Delete(user, 1, kNo);
    EXPECT_EQ(Shown(), "48012/3");
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, YesRemovesTheList) {
  StartWithThree();
  Choose([](User& user) {
    Delete(user, 1);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "three"}));
    user.Click(kOk);
  });
  EXPECT_EQ(Shape(), "A/one/2330.TW|C/three/1101.TW,2454.TW");
}

struct OtherAnswer {
  const char* name;
  int button;
};

class SelectionTextNoDelete : public SelectionTextEdit,
                              public testing::WithParamInterface<OtherAnswer> {};

TEST_P(SelectionTextNoDelete, RemovesNothingAndGivesTheFocusBack) {
  StartWithThree();
  Choose([](User& user) {
    Delete(user, 1, GetParam().button);
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    EXPECT_TRUE(user.HasFocus(kLists));
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved");
}

INSTANTIATE_TEST_SUITE_P(Answer, SelectionTextNoDelete,
                         testing::Values(OtherAnswer{"No", 7}, OtherAnswer{"Cancel", 2},
                                         OtherAnswer{"NotShown", 0}),
                         [](const testing::TestParamInfo<OtherAnswer>& tested) {
                           return tested.param.name;
                         });

TEST_F(SelectionTextEdit, AfterADeleteTheNextListIsSelected) {
  StartWithThree();
  Choose([](User& user) {
    Delete(user, 1);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, AfterTheLastRowIsDeletedThePreviousOneIsSelected) {
  StartWithThree();
  Choose([](User& user) {
    Delete(user, 2);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextEdit, AfterTheOnlyListIsDeletedNoneIsSelected) {
  Start({"A/one/2330.TW"});
  Choose([](User& user) {
    Delete(user, 0);
    EXPECT_EQ(user.Rows(kLists), Lines{});
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{});
    user.Click(kCancel);
  });
}

struct SelectionDelete {
  const char* name;
  int defaultBefore;
  int deleted;
  int defaultAfter;
};

class SelectionTextDelete : public SelectionTextEdit,
                            public testing::WithParamInterface<SelectionDelete> {};

TEST_P(SelectionTextDelete, LeavesTheRightDefaultList) {
  StartWithThree(GetParam().defaultBefore);
  Choose([](User& user) {
    Delete(user, GetParam().deleted);
    user.Click(kOk);
  });
  EXPECT_EQ(DefaultIndex(), GetParam().defaultAfter);
}

// Deleting the default list moves the default to the list before it; what stands behind the default
// does not count.
INSTANTIATE_TEST_SUITE_P(
    Of, SelectionTextDelete,
    testing::Values(SelectionDelete{"TheDefaultInTheMiddle", 1, 1, 0},
                    SelectionDelete{"TheDefaultAtTheEnd", 2, 2, 1},
                    SelectionDelete{"AListRightBeforeTheDefault", 1, 0, 0},
                    SelectionDelete{"AListFarBeforeTheDefault", 2, 0, 1},
                    SelectionDelete{"AListRightBehindTheDefault", 1, 2, 1},
                    SelectionDelete{"AListFarBehindTheDefault", 0, 2, 0},
                    // none is before it; the save makes the first list the default
                    SelectionDelete{"TheDefaultAtTheTop", 0, 0, 0}),
    [](const testing::TestParamInfo<SelectionDelete>& tested) { return tested.param.name; });

// --- Other sources -------------------------------------------------------------------------------

TEST_F(SelectionTextEdit, TheButtonsDoNothingToAllSymbols) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  Choose([this](User& user) {
    EXPECT_TRUE(user.Select(kSources, AllSymbols()));
    for (const int id : {kNew, kEdit, kDelete})
      user.Click(id);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(user.Rows(kLists).size(), 1u);
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEdit, TheButtonsDoNothingToGroups) {
  StartWithThree();
  standin::AnswerMessages(kYes);
  Choose([this](User& user) {
    EXPECT_TRUE(user.Select(kSources, "上市"));
    EXPECT_TRUE(user.Select(kLists, 0));
    for (const int id : {kNew, kEdit, kDelete})
      user.Click(id);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(user.Rows(kLists).size(), 2u);
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
