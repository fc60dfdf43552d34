// The editor of the user's lists: what it shows, and when its buttons can be pressed.
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorText : public EditorTextTest {};

// --- What is shown -------------------------------------------------------------------------------

TEST_F(ListsEditorText, HasItsTitleInTheTerminalsLanguage) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_EQ(user.Title(), Text("自選商品組合", "自选商品组合"));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ItsButtonsHaveTheirLabels) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_EQ(user.Text(kNew), "新增(&A)");
    EXPECT_EQ(user.Text(kEdit), "修改(&M)");
    EXPECT_EQ(user.Text(kDelete), Text("刪除(&D)", "删除(&D)"));
    EXPECT_EQ(user.Text(kRename), "重新命名(&R)");
    EXPECT_EQ(user.Text(kDefault), Text("預設", "预设"));
    EXPECT_EQ(user.Text(kDone), "完成(&K)");
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheButtonsThatMoveAListHavePicturesInThePlaceOfLabels) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_EQ(user.Text(kUp), "");
    EXPECT_EQ(user.Text(kDown), "");
    EXPECT_NE(user.Screen().find("button 807: <up>"), std::string::npos);
    EXPECT_NE(user.Screen().find("button 808: <down>"), std::string::npos);
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ShowsTheUsersListsInTheirOrder) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ShowsNoCloudLists) {
  StartCloud({"C1/cloud/2317.TW"});
  EditLists([](User& user) {
    EXPECT_EQ(user.Rows(kLists), Lines{"mine"});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ASystemListHasItsMarkBehindTheName) {
  Start({"A/one/2330.TW", "ZUSYSLIST2/two/2317.TW"});
  EditLists([](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two" + SystemMark()}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheDefaultListIsDrawnOtherwise) {
  StartWithThree(1);
  EditLists([](User& user) {
    EXPECT_EQ(MarkedRows(user), Numbers{1});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, WithoutADefaultListNoneIsDrawnOtherwise) {
  StartWithThree(-1);
  EditLists([](User& user) {
    EXPECT_EQ(MarkedRows(user), Numbers{});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheNameEditorIsHiddenAtTheStart) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_FALSE(user.IsVisible(kNameEditor));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheSelectedListsContentsAreShown) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_EQ(user.Rows(kContents), (Lines{Cement(), MediaTek()}));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), Lines{Tsmc()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheKeysOfTheListShowTheContentsToo) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.Press(WindowKey::Down));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    EXPECT_EQ(user.Rows(kContents), Lines{HonHai()});
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, AHeadingIsShownByItsTextAlone) {
  Start({"A/one/2330.TW,semi:,2454.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), (Lines{Tsmc(), "semi", MediaTek()}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, NamesOfDoubleByteCharactersAreShownWhole) {
  const std::string name = Text("許功蓋", "许功盖");
  Start({"A/" + standin::ToAnsi(name) + "/1436.TW"});
  EditLists([&](User& user) {
    EXPECT_EQ(user.Rows(kLists), Lines{name});
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_EQ(user.Rows(kContents), Lines{"1436.TW " + name});
    user.Click(kDone);
  });
}

// --- When buttons can be pressed -----------------------------------------------------------------

TEST_F(ListsEditorText, WithoutListsThereIsNothingToDoButToMakeOne) {
  Start({});
  EditLists([](User& user) {
    EXPECT_TRUE(user.IsEnabled(kNew));
    EXPECT_TRUE(user.IsEnabled(kDone));
    for (const int id : {kEdit, kDelete, kRename, kDefault, kDown})
      EXPECT_FALSE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ASelectedListCanBeEditedRenamedDeletedAndMadeTheDefault) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    for (const int id : {kNew, kEdit, kDelete, kRename, kDefault, kDone})
      EXPECT_TRUE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, ASystemListCannotBeDeletedButEditedAndRenamed) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_FALSE(user.IsEnabled(kDelete));
    EXPECT_TRUE(user.IsEnabled(kEdit));
    EXPECT_TRUE(user.IsEnabled(kRename));
    EXPECT_TRUE(user.IsEnabled(kDefault));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, BehindASystemListAnotherCanBeDeletedAgain) {
  Start({"A/one/2330.TW", "ZUSYSLIST1/two/2317.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.IsEnabled(kDelete));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheFirstListCannotMoveUp) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, AListInTheMiddleCanMoveEitherWay) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheLastListCannotMoveDown) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.IsEnabled(kUp));
    EXPECT_FALSE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, TheOnlyListCannotMove) {
  Start({"A/one/2330.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_FALSE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, AListThatHasMovedToTheTopCannotMoveUpAnyMore) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kUp));
    EXPECT_FALSE(user.IsEnabled(kUp));
    EXPECT_TRUE(user.IsEnabled(kDown));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorText, AfterTheLastListIsDeletedNothingCanBeDoneToIt) {
  Start({"A/one/2330.TW"});
  standin::AnswerMessages(kYes);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.Click(kDelete));
    for (const int id : {kEdit, kDelete, kRename, kDefault})
      EXPECT_FALSE(user.IsEnabled(id)) << id;
    user.Click(kDone);
  });
}

// --- The end -------------------------------------------------------------------------------------

TEST_F(ListsEditorText, DoneEndsWithOk) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) { EXPECT_TRUE(user.Click(kDone)); }), 1);
}

TEST_F(ListsEditorText, EnterIsDone) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) {
              EXPECT_TRUE(user.Select(kLists, 0));
              EXPECT_TRUE(user.Press(WindowKey::Enter));
            }),
            1);
}

TEST_F(ListsEditorText, EscapeCancels) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) { EXPECT_TRUE(user.Press(WindowKey::Escape)); }), 2);
}

TEST_F(ListsEditorText, TheTitleBarCancels) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) { EXPECT_TRUE(user.CloseByTitleBar()); }), 2);
}

} // namespace
