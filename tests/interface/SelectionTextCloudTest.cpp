// The selection: the cloud lists are made, edited and deleted from there, each change at once.
#include "tests/interface/EditorText.h"

namespace {

class SelectionTextCloud : public SelectionTextTest {
protected:
  void StartWithCloud() { StartCloud({"C1/cloud one/2330.TW", "C2/cloud two/1101.TW,2454.TW"}); }
  static Lines Cloud() { return {"cloud one", "cloud two"}; }
  static void ShowCloud(User& user) { EXPECT_TRUE(SelectShowing(user, Cloud())); }
  static void Edit(User& user, int row, UserScript script) {
    ShowCloud(user);
    EXPECT_TRUE(user.Select(kLists, row));
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kEdit));
  }
  static void New(User& user, UserScript script) {
    ShowCloud(user);
    WhenDialogOpens(std::move(script));
    EXPECT_TRUE(user.Click(kNew));
  }
  static void Delete(User& user, int row, int answer = kYes) {
    standin::AnswerMessages(answer);
    ShowCloud(user);
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kDelete));
  }
};

TEST_F(SelectionTextCloud, EditOpensTheCloudListsEditorOfContents) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, [](User& editor) {
      EXPECT_EQ(editor.Title(), Text("修改自選商品組合(雲自選)", "修改自选商品组合(云自选)"));
      EXPECT_FALSE(editor.IsVisible(kSubTitle));
      EXPECT_EQ(editor.Text(kListName), "cloud two");
      editor.Click(kCancel);
    });
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, AnEditedListStaysSelectedUnderItsNewName) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"cloud one", "zwei"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, AnEditIsStoredAtOnce) {
  StartWithCloud();
  Choose([this](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    EXPECT_EQ(CloudShape(), "C1/cloud one/2330.TW|C2/cloud two/2454.TW");
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, AnEditedListGoesIntoTheCloudMapAtOnce) {
  StartWithCloud();
  Choose([this](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    EXPECT_NE(CloudMap().find("<List ID='C2' Name='cloud two' Value='2454.TW' Flag='0'/>"),
              std::string::npos)
        << CloudMap();
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, OnlyTheEditedListGoesIntoTheCloudMap) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, NameIt("zwei"));
    user.Click(kCancel);
  });
  EXPECT_EQ(CloudMap(), "<Cloud><List ID='C2' Name='zwei' Value='1101.TW,2454.TW' Flag='0'/>\n"
                        "</Cloud>");
}

TEST_F(SelectionTextCloud, ChangesOfBothKindsOfListsAreStored) {
  StartWithCloud();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    EXPECT_TRUE(user.Select(kLists, 0));
    WhenDialogOpens(NameIt("meine"));
    EXPECT_TRUE(user.Click(kEdit));
    Edit(user, 1, NameIt("zwei"));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Shape(), "A/meine/2330.TW");
  EXPECT_EQ(CloudShape(), "C1/cloud one/2330.TW|C2/zwei/1101.TW,2454.TW");
  EXPECT_EQ(Happened(), "saved; told 41:; told 40:" + Logged("DoSelectUI"));
}

TEST_F(SelectionTextCloud, ACloudListMayNotTakeAnothersName) {
  StartWithCloud();
  Choose([this](User& user) {
    New(user, [this](User& editor) {
      EXPECT_TRUE(editor.Fill(kListName, "cloud one"));
      editor.Click(kOk);
      EXPECT_EQ(Shown(), "48011/0");
      editor.Click(kCancel);
    });
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, ACancelledEditChangesNothing) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, CancelIt());
    user.Click(kOk);
  });
  EXPECT_EQ(Happened(), "not saved");
  EXPECT_EQ(CloudMap(), "<Cloud></Cloud>");
}

TEST_F(SelectionTextCloud, ANewListIsACloudList) {
  StartWithCloud();
  Choose([this](User& user) {
    New(user, NameIt("cloud three"));
    EXPECT_EQ(user.Rows(kLists), (Lines{"cloud one", "cloud two", "cloud three"}));
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{2});
    EXPECT_EQ(manager.GetSymbolListCount(8), 3);
    EXPECT_EQ(manager.GetSymbolListCount(1), 1);
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, ANewListGoesIntoTheCloudMap) {
  StartWithCloud();
  Choose([](User& user) {
    New(user, NameIt("cloud three"));
    user.Click(kCancel);
  });
  EXPECT_NE(CloudMap().find("Name='cloud three'"), std::string::npos) << CloudMap();
}

TEST_F(SelectionTextCloud, DeleteAsksYesNoOrCancel) {
  StartWithCloud();
  Choose([this](User& user) {
    Delete(user, 0, kNo);
    EXPECT_EQ(Shown(), "48012/3");
    EXPECT_EQ(user.Rows(kLists), Cloud());
    EXPECT_TRUE(user.HasFocus(kLists));
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, ADeleteIsStoredAtOnce) {
  StartWithCloud();
  Choose([this](User& user) {
    Delete(user, 0);
    EXPECT_EQ(user.Rows(kLists), Lines{"cloud two"});
    EXPECT_EQ(CloudShape(), "C2/cloud two/1101.TW,2454.TW");
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, ADeletedCloudListDoesNotMoveTheUsersDefault) {
  StartWithCloud();
  Choose([](User& user) {
    Delete(user, 0);
    user.Click(kOk);
  });
  EXPECT_EQ(DefaultIndex(), 0);
  EXPECT_EQ(Shape(), "A/mine/2330.TW");
}

TEST_F(SelectionTextCloud, AfterTheLastRowIsDeletedThePreviousOneIsSelected) {
  StartWithCloud();
  Choose([](User& user) {
    Delete(user, 1);
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, OkTellsOfTheCloudListsAndOfTheChange) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Happened(), "not saved; told 41:; told 40:" + Logged("DoSelectUI"));
  EXPECT_EQ(Answer(), "8/C2");
}

TEST_F(SelectionTextCloud, OkWithoutAChangeTellsNothing) {
  StartWithCloud();
  Choose([](User& user) {
    ShowCloud(user);
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextCloud, NothingIsToldBeforeTheDialogCloses) {
  StartWithCloud();
  Choose([this](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    EXPECT_EQ(Happened(), "not saved");
    user.Click(kCancel);
  });
}

TEST_F(SelectionTextCloud, CancelKeepsTheChangesThatWereMade) {
  StartWithCloud();
  EXPECT_EQ(Choose([](User& user) {
              Edit(user, 1, RemoveItsFirstRow());
              EXPECT_TRUE(user.Click(kCancel));
            }),
            2);
  EXPECT_EQ(CloudShape(), "C1/cloud one/2330.TW|C2/cloud two/2454.TW");
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextCloud, AChangeIsToldAfterCancelToo) {
  StartWithCloud();
  Choose([](User& user) {
    Edit(user, 1, RemoveItsFirstRow());
    user.Click(kCancel);
  });
  EXPECT_EQ(Happened(), "not saved; told 40:" + Logged("DoSelectUI"));
}

} // namespace
